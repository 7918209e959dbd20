#pragma once

#include <QColor>
#include <QImage>
#include <QQuickImageProvider>

/// The icon @p name of IconTable.h in @p color, as a square of @p pixels. Null when there is none of that name.
QImage RenderIcon(const QString& name, const QColor& color, int pixels);

/// Serves the icons to QML as image://icon/NAME/COLOR, with a colour as QML writes it: #rrggbb or #aarrggbb.
///
/// @code
/// engine.addImageProvider(QStringLiteral("icon"), new TIconProvider);
/// // Image { source: "image://icon/plus/#101418"; sourceSize: Qt.size(32, 32) }
/// @endcode
class TIconProvider : public QQuickImageProvider
{
public:
    TIconProvider();

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};
