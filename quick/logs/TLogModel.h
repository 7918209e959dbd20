#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <memory>

class TLogTail;

/// The newest lines of a log, the newest one last, live. In QML it is Log.
///
/// The files are read in a thread of its own, twice a second while the object exists and is not paused. Characters that
/// are not printed are blanks.
class TLogModel : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(EKind kind READ Kind WRITE SetKind NOTIFY kindChanged)
    Q_PROPERTY(bool paused READ IsPaused WRITE SetPaused NOTIFY pausedChanged)
    Q_PROPERTY(int count READ Count NOTIFY countChanged)
    Q_PROPERTY(QString error READ Error NOTIFY errorChanged)

public:
    enum EKind
    {
        User, ///< what operators and programs have done
        Nmea, ///< what the receiver has sent
    };
    Q_ENUM(EKind)

    enum ERole
    {
        ROLE_LINE = Qt::UserRole,
    };

    static constexpr int MostLines = 500;

    explicit TLogModel(QObject* parent = nullptr);

    EKind Kind() const { return m_Kind; }
    void SetKind(EKind kind);

    /// A paused list stands still. What has come meanwhile is shown when it goes on.
    bool IsPaused() const { return m_IsPaused; }
    void SetPaused(bool isPaused);

    int Count() const { return static_cast<int>(m_Lines.size()); }

    /// Which file cannot be read; empty when all can be.
    QString Error() const { return m_Error; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void kindChanged();
    void pausedChanged();
    void countChanged();
    void errorChanged();

private:
    struct tagNews
    {
        QStringList lines;
        QString error;
    };

    static tagNews ReadNews(TLogTail& tail, EKind kind);
    void Begin();
    void Look();
    void Take(const tagNews& news);

    EKind m_Kind = User;
    bool m_IsPaused = false;
    QStringList m_Lines;
    QString m_Error;
    std::shared_ptr<TLogTail> m_Tail; ///< used in the other thread; another object for each kind
    bool m_IsLooking = false;
    QTimer m_Timer; ///< until the next look
};
