#include "logs/TLogModel.h"

#include "diagnostics/TLogTail.h"
#include "logs/TNEMADiagnosticLogProxy.h"
#include "module/TBackground.h"
#include "system/TSystemSettingsProxy.h"
#include "texts/HostText.h"

#include <algorithm>

namespace {

const int LookMs = 500;

/// Enough for the newest lines: a sentence has at most 82 bytes, an entry of the user log seldom more than 200.
const qint64 FirstBytes = qint64{200} * TLogModel::MostLines;

QString Printed(QString text)
{
    for (QChar& character : text) {
        if (!character.isPrint())
            character = QLatin1Char(' ');
    }
    return text;
}

} // namespace

TLogModel::TLogModel(QObject* parent) : QAbstractListModel(parent)
{
    m_Timer.setSingleShot(true);
    m_Timer.setInterval(LookMs);
    connect(&m_Timer, &QTimer::timeout, this, &TLogModel::Look);
    Begin();
}

void TLogModel::SetKind(EKind kind)
{
    if (kind == m_Kind)
        return;
    m_Kind = kind;
    emit kindChanged();
    Begin();
}

void TLogModel::SetPaused(bool isPaused)
{
    if (isPaused == m_IsPaused)
        return;
    m_IsPaused = isPaused;
    emit pausedChanged();
    if (!isPaused)
        Look();
}

void TLogModel::Begin()
{
    const TSystemSettingsProxy system;
    const QString path = m_Kind == User ? system.GetInternalUserLogPath() : system.GetInternalNemaLogPath();
    m_Tail = std::make_shared<TLogTail>(path, FirstBytes);
    m_IsLooking = false;
    if (!m_Lines.isEmpty()) {
        beginResetModel();
        m_Lines.clear();
        endResetModel();
        emit countChanged();
    }
    Look();
}

TLogModel::tagNews TLogModel::ReadNews(TLogTail& tail, EKind kind)
{
    if (kind == Nmea)
        TNEMADiagnosticLogProxy().FlushTempBuffer(); // else the last sentences before a silence would be missing
    tagNews news;
    QList<tagLogLine> lines = tail.Read(&news.error);
    news.error = CabQuick::HostText(news.error);
    lines = lines.mid(std::max(0, static_cast<int>(lines.size()) - MostLines));
    for (const tagLogLine& line : lines)
        news.lines.append(Printed(line.text));
    return news;
}

void TLogModel::Look()
{
    if (m_IsPaused || m_IsLooking)
        return;
    m_IsLooking = true;
    const std::shared_ptr<TLogTail> tail = m_Tail;
    const EKind kind = m_Kind;
    TBackground::Lane("logs").Run(
        this, [tail, kind] { return ReadNews(*tail, kind); },
        [this, tail](const tagNews& news) {
            if (tail == m_Tail)
                Take(news);
        });
}

void TLogModel::Take(const tagNews& news)
{
    m_IsLooking = false;
    m_Timer.start();
    if (news.error != m_Error) {
        m_Error = news.error;
        emit errorChanged();
    }
    if (news.lines.isEmpty())
        return;
    const int before = Count();
    const int surplus = before + static_cast<int>(news.lines.size()) - MostLines;
    if (surplus > 0 && before > 0) {
        const int gone = std::min(surplus, before);
        beginRemoveRows(QModelIndex(), 0, gone - 1);
        m_Lines.erase(m_Lines.begin(), m_Lines.begin() + gone);
        endRemoveRows();
    }
    beginInsertRows(QModelIndex(), Count(), Count() + static_cast<int>(news.lines.size()) - 1);
    m_Lines += news.lines;
    endInsertRows();
    if (Count() != before)
        emit countChanged();
}

int TLogModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : Count(); }

QVariant TLogModel::data(const QModelIndex& index, int role) const
{
    return index.isValid() && index.row() < Count() && role == ROLE_LINE ? m_Lines.at(index.row()) : QVariant();
}

QHash<int, QByteArray> TLogModel::roleNames() const { return {{ROLE_LINE, "line"}}; }
