#pragma once

#include "TTemporaryFolder.h"

#include <QByteArray>

#include <sys/stat.h>
#include <unistd.h>

/// What somebody has put in the place of a file.
struct tagObstacle
{
    const char* name;

    /// Makes it. @p other is a file that is not to be touched, with content.
    bool (*make)(const char* path, const char* other);
};

/// The name of a file that is not there, beside one that is.
inline QByteArray Missing(const char* other) { return QByteArray(other) + "-missing"; }

constexpr tagObstacle Links[] = {
    {"link to a file", [](const char* path, const char* other) { return symlink(other, path) == 0; }},
    {"link to nothing",
     [](const char* path, const char* other) { return symlink(Missing(other).constData(), path) == 0; }},
    {"link to itself", [](const char* path, const char*) { return symlink(path, path) == 0; }},
    {"link to a device that is full", [](const char* path, const char*) { return symlink("/dev/full", path) == 0; }},
    {"hard link to a file", [](const char* path, const char* other) { return link(other, path) == 0; }},
};

constexpr tagObstacle OtherKinds[] = {
    {"pipe", [](const char* path, const char*) { return mkfifo(path, S_IRUSR | S_IWUSR) == 0; }},
    {"socket", [](const char* path, const char*) { return mknod(path, S_IFSOCK | S_IRUSR | S_IWUSR, 0) == 0; }},
    {"folder", [](const char* path, const char*) { return mkdir(path, S_IRWXU) == 0; }},
    {"device without an end", [](const char* path, const char*) { return symlink("/dev/zero", path) == 0; }},
    {"device without content", [](const char* path, const char*) { return symlink("/dev/null", path) == 0; }},
};

/// Seconds after which a program has stopped at something that does not answer.
constexpr unsigned SecondsToStop = 120;
