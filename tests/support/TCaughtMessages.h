#pragma once

#include <QStringList>
#include <QtGlobal>

/// Takes the messages of Qt while it lives, qWarning() and its like, instead of having them printed. One at a time.
class TCaughtMessages
{
public:
    TCaughtMessages() : m_Before(Install(&Take)) { Texts().clear(); }
    ~TCaughtMessages() { Install(m_Before); }

    TCaughtMessages(const TCaughtMessages&) = delete;
    TCaughtMessages& operator=(const TCaughtMessages&) = delete;

    static QStringList& Texts()
    {
        static QStringList texts;
        return texts;
    }

private:
#if QT_VERSION < 0x050000
    using FHandler = QtMsgHandler;
    static void Take(QtMsgType, const char* text) { Texts().append(QString::fromUtf8(text)); }
    static FHandler Install(FHandler handler) { return qInstallMsgHandler(handler); }
#else
    using FHandler = QtMessageHandler;
    static void Take(QtMsgType, const QMessageLogContext&, const QString& text) { Texts().append(text); }
    static FHandler Install(FHandler handler) { return qInstallMessageHandler(handler); }
#endif

    FHandler m_Before;
};
