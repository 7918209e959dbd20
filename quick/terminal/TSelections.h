#pragma once

#include "parameters/TParameterCatalogue.h"

#include <QObject>
#include <QString>
#include <QStringList>

/// The names of the items that are active. A property is empty when nothing is selected. To write one selects the item,
/// as the operator does: a name that is not accepted, or that cannot be stored, sets the error, and the property keeps
/// its value.
class TSelections : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString client READ Client WRITE SetClient NOTIFY changed)
    Q_PROPERTY(QString farm READ Farm WRITE SetFarm NOTIFY changed)
    Q_PROPERTY(QString field READ Field WRITE SetField NOTIFY changed)
    Q_PROPERTY(QString job READ Job WRITE SetJob NOTIFY changed)
    Q_PROPERTY(QString boundary READ Boundary WRITE SetBoundary NOTIFY changed)
    Q_PROPERTY(QString abLine READ AbLine WRITE SetAbLine NOTIFY changed)
    Q_PROPERTY(QString pivot READ Pivot WRITE SetPivot NOTIFY changed)
    Q_PROPERTY(QString curve READ Curve WRITE SetCurve NOTIFY changed)
    Q_PROPERTY(QString vehicle READ Vehicle WRITE SetVehicle NOTIFY changed)
    Q_PROPERTY(QString implement READ Implement WRITE SetImplement NOTIFY changed)
    Q_PROPERTY(QString sprayer READ Sprayer WRITE SetSprayer NOTIFY changed)
    Q_PROPERTY(QString error READ Error NOTIFY errorChanged)

public:
    explicit TSelections(QObject* parent);

    QString Client() const { return Name(PARAM_CLIENT); }
    QString Farm() const { return Name(PARAM_FARM); }
    QString Field() const { return Name(PARAM_FIELD); }
    QString Job() const { return Name(PARAM_ACTIVE_JOB); }
    QString Boundary() const { return Name(PARAM_ACTIVE_BOUNDARY); }
    QString AbLine() const { return Name(PARAM_ACTIVE_AB_LINE); }
    QString Pivot() const { return Name(PARAM_ACTIVE_PIVOT); }
    QString Curve() const { return Name(PARAM_ACTIVE_CURVE); }
    QString Vehicle() const { return Name(PARAM_ACTIVE_VEHICLE); }
    QString Implement() const { return Name(PARAM_ACTIVE_IMPLEMENT); }
    QString Sprayer() const { return Name(PARAM_ACTIVE_SPRAYER); }

    void SetClient(const QString& name) { Select(PARAM_CLIENT, name); }
    void SetFarm(const QString& name) { Select(PARAM_FARM, name); }
    void SetField(const QString& name) { Select(PARAM_FIELD, name); }
    void SetJob(const QString& name) { Select(PARAM_ACTIVE_JOB, name); }
    void SetBoundary(const QString& name) { Select(PARAM_ACTIVE_BOUNDARY, name); }
    void SetAbLine(const QString& name) { Select(PARAM_ACTIVE_AB_LINE, name); }
    void SetPivot(const QString& name) { Select(PARAM_ACTIVE_PIVOT, name); }
    void SetCurve(const QString& name) { Select(PARAM_ACTIVE_CURVE, name); }
    void SetVehicle(const QString& name) { Select(PARAM_ACTIVE_VEHICLE, name); }
    void SetImplement(const QString& name) { Select(PARAM_ACTIVE_IMPLEMENT, name); }
    void SetSprayer(const QString& name) { Select(PARAM_ACTIVE_SPRAYER, name); }

    /// Why the last write was refused; empty after a good one.
    QString Error() const { return m_Error; }

    /// Empty when @p name is accepted, else why not.
    /// @param kind the name of a property, or of ActiveItems::Kinds().
    Q_INVOKABLE QString check(const QString& kind, const QString& name) const;

    /// The names that can be selected, in order, the selected one among them. Reads the disk.
    Q_INVOKABLE QStringList list(const QString& kind) const;

    /// Empty when the saved guidance line @p name may be renamed to @p newName, else why not. Reads the disk.
    Q_INVOKABLE QString checkLineName(const QString& name, const QString& newName) const;

    /// Renames a saved guidance line. When it is selected, it stays so under its new name. Waits for the disk.
    /// @return empty, or a sentence that says why it is not renamed.
    Q_INVOKABLE QString renameLine(const QString& name, const QString& newName);

    /// A name as the operator reads it. "No Vehicle" and the other names that mean that nothing is selected are in the
    /// language of the display; any other name stays as it is.
    Q_INVOKABLE QString shown(const QString& name) const;

signals:
    /// At least one of the names has changed, by this or another program.
    void changed();
    void errorChanged();

private:
    static QString Name(EParamID item);
    void Select(EParamID item, const QString& name);

    QString m_Error;
};
