#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

struct tagParameter;

/// One parameter of the terminal, as `Parameter` in QML. Follows every change, by whichever object or program.
///
/// @code
/// Parameter { id: metric; name: "units.metric" }
/// Text { text: metric.title + ": " + metric.shownText }
/// MouseArea { onClicked: metric.value = !metric.value }
/// @endcode
///
/// What is set is checked by TParameterCatalogue, and refused with a sentence in `error`. What is accepted counts at
/// once, and is written to the disk by another thread; `error` then says when that has failed.
class TParameter : public QObject
{
    Q_OBJECT

    /// The name, or the number as a text. Without a parameter of that name `exists` is false and the texts are empty.
    Q_PROPERTY(QString name READ Name WRITE SetName NOTIFY nameChanged)
    Q_PROPERTY(bool exists READ Exists NOTIFY nameChanged)
    Q_PROPERTY(int number READ Number NOTIFY nameChanged)
    Q_PROPERTY(QString group READ Group NOTIFY nameChanged) ///< "units"

    Q_PROPERTY(QString title READ Title NOTIFY nameChanged)     ///< short, for the operator
    Q_PROPERTY(QString meaning READ Meaning NOTIFY nameChanged) ///< a sentence without a full stop
    Q_PROPERTY(QString type READ Type NOTIFY nameChanged)       ///< "bool", "int", "string" or "color"
    Q_PROPERTY(QString unit READ Unit NOTIFY nameChanged)
    Q_PROPERTY(QString accepts READ Accepts NOTIFY nameChanged) ///< which values are accepted, in words
    Q_PROPERTY(bool needsRestart READ NeedsRestart NOTIFY nameChanged)
    Q_PROPERTY(QVariantList choices READ Choices NOTIFY nameChanged) ///< see ParameterTexts::Choices()
    Q_PROPERTY(bool hasRange READ HasRange NOTIFY nameChanged)
    Q_PROPERTY(int least READ Least NOTIFY nameChanged)
    Q_PROPERTY(int greatest READ Greatest NOTIFY nameChanged)

    /// The value of a first start; undefined when the parameter is absent at first.
    Q_PROPERTY(QVariant defaultValue READ DefaultValue NOTIFY nameChanged)

    Q_PROPERTY(QVariant value READ Value WRITE SetValue NOTIFY valueChanged) ///< undefined when absent
    Q_PROPERTY(bool isDefault READ IsDefault NOTIFY valueChanged)
    Q_PROPERTY(QString text READ Text NOTIFY valueChanged)           ///< as `cabsettings get` prints it
    Q_PROPERTY(QString shownText READ ShownText NOTIFY valueChanged) ///< as the operator reads it

    Q_PROPERTY(QString error READ Error NOTIFY errorChanged) ///< of the last value that was set; empty: accepted

public:
    explicit TParameter(QObject* parent = nullptr);

    QString Name() const { return m_Name; }
    void SetName(const QString& name);
    bool Exists() const { return m_Parameter; }
    int Number() const;
    QString Group() const;
    QString Title() const;
    QString Meaning() const;
    QString Type() const;
    QString Unit() const;
    QString Accepts() const;
    bool NeedsRestart() const;
    QVariantList Choices() const;
    bool HasRange() const;
    int Least() const;
    int Greatest() const;
    QVariant DefaultValue() const;
    QVariant Value() const;
    void SetValue(const QVariant& value);
    bool IsDefault() const;
    QString Text() const;
    QString ShownText() const;
    QString Error() const { return m_Error; }

    /// Sets what was typed: a choice by its name or number. False when it is refused; `error` says why.
    Q_INVOKABLE bool set(const QString& typed);

    /// Why @p typed would be refused, as one sentence; empty when it would be accepted.
    Q_INVOKABLE QString check(const QString& typed) const;

    /// Sets the default. A parameter without one becomes absent, and the terminal chooses a value at its next start.
    Q_INVOKABLE void reset();

signals:
    void nameChanged();
    void valueChanged();
    void errorChanged();

private:
    void SetError(const QString& error);

    QString m_Name;
    const tagParameter* m_Parameter; // null: there is none of the name
    QString m_Error;
};
