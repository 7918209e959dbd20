#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

class TRegionSettingsProxy;

/// The display's clock, with the texts of the façade. Each property notifies when its own text has changed.
class TClock : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString time READ Time NOTIFY timeChanged)
    Q_PROPERTY(QString shortTime READ ShortTime NOTIFY shortTimeChanged)
    Q_PROPERTY(QString date READ Date NOTIFY dateChanged)
    Q_PROPERTY(QString dateTime READ DateTime NOTIFY timeChanged)
    Q_PROPERTY(int year READ Year NOTIFY timeChanged)
    Q_PROPERTY(int month READ Month NOTIFY timeChanged)
    Q_PROPERTY(int day READ Day NOTIFY timeChanged)
    Q_PROPERTY(int hour READ Hour NOTIFY timeChanged)
    Q_PROPERTY(int minute READ Minute NOTIFY timeChanged)
    Q_PROPERTY(int second READ Second NOTIFY timeChanged)
    Q_PROPERTY(QString source READ Source NOTIFY sourceChanged)
    Q_PROPERTY(QString sourceText READ SourceText NOTIFY sourceChanged)
    Q_PROPERTY(QString offsetText READ OffsetText NOTIFY offsetChanged)
    Q_PROPERTY(bool canSetDate READ CanSetDate NOTIFY canSetDateChanged)
    Q_PROPERTY(QString error READ Error NOTIFY errorChanged)

public:
    explicit TClock(QObject* parent);

    QString Time() const { return m_Shown.time; }           ///< "14:05:09", or "02:05:09 pm"
    QString ShortTime() const { return m_Shown.shortTime; } ///< "14:05", or "02:05 pm"
    QString Date() const { return m_Shown.date; }
    QString DateTime() const { return m_Shown.date + QLatin1Char(' ') + m_Shown.time; }
    int Year() const { return m_Now.date().year(); }
    int Month() const { return m_Now.date().month(); }
    int Day() const { return m_Now.date().day(); }
    int Hour() const { return m_Now.time().hour(); }
    int Minute() const { return m_Now.time().minute(); }
    int Second() const { return m_Now.time().second(); }

    QString Source() const { return m_Shown.source; }     ///< "none", "operator" or "receiver"
    QString SourceText() const;                           ///< a sentence
    QString OffsetText() const { return m_Shown.offset; } ///< local time less UTC: "UTC +01:00"

    /// False once a receiver has set the clock. Setting the time then changes the offset from UTC alone.
    bool CanSetDate() const { return m_Shown.canSetDate; }

    /// What was wrong with the last call of one of the functions below; empty when it has succeeded.
    QString Error() const { return m_Error; }

    /// A part of a date or a time as it is written with leading zeros: "05" for 5 with two digits.
    Q_INVOKABLE static QString digits(int part, int count);

    // Set the clock as the operator does. False when the date or the time does not exist, is too far from the machine's
    // clock, or could not be stored.
    Q_INVOKABLE bool setDate(int year, int month, int day);
    Q_INVOKABLE bool setTime(int hour, int minute, int second);
    Q_INVOKABLE bool setDateTime(int year, int month, int day, int hour, int minute, int second);

signals:
    void timeChanged();
    void shortTimeChanged();
    void dateChanged();
    void sourceChanged();
    void offsetChanged();
    void canSetDateChanged();
    void errorChanged();

private:
    struct tagShown
    {
        QString time;
        QString shortTime;
        QString date;
        QString source;
        QString offset;
        bool canSetDate = true;
    };

    static tagShown Look();
    void Refresh();
    bool Set(const QDate& date, const QTime& time, const std::function<void(TRegionSettingsProxy& region)>& set);
    bool KeepError(const QString& error);

    tagShown m_Shown;
    QDateTime m_Now;
    QString m_Error;
    QTimer m_Timer; ///< until the next second
};
