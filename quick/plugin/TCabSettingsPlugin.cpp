#include "module/RegisterTypes.h"

#include <QQmlExtensionPlugin>

/// Lets tools and programs that load QML from a folder find the module by its import alone. A program that is linked
/// with the library needs no plugin: CabQuick::Publish() registers the types.
class TCabSettingsPlugin : public QQmlExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    void registerTypes(const char*) override { CabQuick::RegisterTypes(); }
};

#include "TCabSettingsPlugin.moc"
