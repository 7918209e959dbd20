#pragma once

#include "stores/TParameterWatch.h"

#include <QObject>
#include <QString>

class TSqliteStore;

/// What all objects of the module share: the store, the data folder, and one watch of the parameters, so that a page
/// with a hundred settings does not need a hundred watches.
class TParameterHub : public QObject
{
    Q_OBJECT

public:
    TParameterHub(TSqliteStore& store, const QString& dataFolder);

    /// The hub that is published. Objects of the module exist only while there is one.
    static TParameterHub& Instance();

    static bool IsPublished();

    TSqliteStore& Store() const { return m_Store; }
    const QString& DataFolder() const { return m_DataFolder; }

signals:
    /// The value of the parameter with this number has changed, by whichever thread or program.
    void Changed(int number);

private:
    TSqliteStore& m_Store;
    const QString m_DataFolder;
    TParameterWatch m_Watch;
};
