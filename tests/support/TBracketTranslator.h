#pragma once

#include <QCoreApplication>
#include <QString>
#include <QTranslator>

/// Translates every text of one context by putting it in brackets, as long as it lives.
class TBracketTranslator : public QTranslator
{
public:
    explicit TBracketTranslator(const char* context) : m_Context(QString::fromLatin1(context))
    {
        QCoreApplication::installTranslator(this);
    }

    ~TBracketTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }

#if QT_VERSION < 0x050000
    QString translate(const char* context, const char* text, const char*) const override
#else
    QString translate(const char* context, const char* text, const char*, int) const override
#endif
    {
        const bool isKnown = QString::fromLatin1(context) == m_Context;
        return isKnown ? QLatin1Char('[') + QString::fromUtf8(text) + QLatin1Char(']') : QString();
    }

private:
    QString m_Context;
};
