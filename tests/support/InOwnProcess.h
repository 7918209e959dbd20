#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstddef>

#include <sys/wait.h>
#include <unistd.h>

/// What @p call, which returns a QStringList, answers in a process of its own, where nothing that is read once has been
/// read yet. "died" when that process does not end well. Only for programs that have not read it either.
template <class Call>
QStringList InOwnProcess(Call call)
{
    const QStringList died(QString::fromLatin1("died"));
    const QChar separator(0x1f);
    int ends[2];
    if (pipe(ends) != 0)
        return died;
    const pid_t child = fork();
    if (child == 0) {
        const QByteArray answer = call().join(QString(separator)).toUtf8();
        const bool isWritten = write(ends[1], answer.constData(), static_cast<std::size_t>(answer.size())) ==
                               static_cast<ssize_t>(answer.size());
        _exit(isWritten ? 0 : 1);
    }
    close(ends[1]);
    QByteArray answer;
    char part[512];
    for (ssize_t size = read(ends[0], part, sizeof part); size > 0; size = read(ends[0], part, sizeof part))
        answer.append(part, static_cast<int>(size));
    close(ends[0]);
    int status = 1;
    if (child < 0 || waitpid(child, &status, 0) != child || status != 0)
        return died;
    return QString::fromUtf8(answer.constData(), answer.size()).split(separator);
}
