#include "boundaries/TShapeFiles.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <limits>

namespace {

thread_local TShapeFiles* FilesOfThread = nullptr;

struct tagOpenFile
{
    QByteArray& bytes;
    SAOffset at;
};

tagOpenFile& Opened(SAFile file) { return *reinterpret_cast<tagOpenFile*>(file); }

SAOffset SizeOf(const tagOpenFile& file) { return static_cast<SAOffset>(file.bytes.size()); }

std::string ExtensionOf(const char* name)
{
    const char* const dot = std::strrchr(name, '.');
    return dot ? dot + 1 : std::string();
}

SAOffset Read(void* to, SAOffset size, SAOffset count, SAFile handle)
{
    tagOpenFile& file = Opened(handle);
    const SAOffset left = file.at < SizeOf(file) ? SizeOf(file) - file.at : 0;
    const SAOffset whole = size > 0 ? std::min(count, left / size) : 0;
    std::memcpy(to, file.bytes.constData() + std::min(file.at, SizeOf(file)), whole * size);
    file.at += whole * size;
    return whole;
}

// Versions 1.5 and 1.6 of the library declare the calls Write(), Remove() and Open() differently: the templates fit
// both.

template <class T>
SAOffset Write(T* from, SAOffset size, SAOffset count, SAFile handle)
{
    tagOpenFile& file = Opened(handle);
    const SAOffset end = file.at + size * count;
    if (end > static_cast<SAOffset>(std::numeric_limits<int>::max()))
        return 0;
    if (end > SizeOf(file)) {
        const SAOffset before = SizeOf(file);
        file.bytes.resize(static_cast<int>(end));
        std::fill(file.bytes.begin() + static_cast<int>(before), file.bytes.end(), '\0');
    }
    std::memcpy(file.bytes.data() + file.at, from, size * count);
    file.at = end;
    return count;
}

SAOffset Seek(SAFile handle, SAOffset offset, int whence)
{
    tagOpenFile& file = Opened(handle);
    file.at = offset + (whence == SEEK_CUR ? file.at : whence == SEEK_END ? SizeOf(file) : 0);
    return 0;
}

SAOffset Tell(SAFile handle) { return Opened(handle).at; }

int Flush(SAFile) { return 0; }

int Close(SAFile handle)
{
    delete &Opened(handle);
    return 0;
}

template <class... T>
int Remove(const char*, T...) // of files of other programs, which stay
{
    return 0;
}

void BeSilent(const char*) {} // the library would print on standard error

} // namespace

struct tagShapeCalls
{
    template <class... T>
    static SAFile Open(const char* name, const char* access, T...)
    {
        auto& files = FilesOfThread->m_Files;
        const std::string extension = ExtensionOf(name);
        if (*access == 'w')
            files[extension].clear();
        const auto found = files.find(extension);
        return found != files.end() ? reinterpret_cast<SAFile>(new tagOpenFile{found->second, 0}) : nullptr;
    }
};

TShapeFiles::TShapeFiles() { FilesOfThread = this; }
TShapeFiles::~TShapeFiles() { FilesOfThread = nullptr; }

SAHooks TShapeFiles::Hooks()
{
    SAHooks hooks = {};
    SASetupDefaultHooks(&hooks);
    hooks.FOpen = &tagShapeCalls::Open;
    hooks.FRead = &Read;
    hooks.FWrite = &Write;
    hooks.FSeek = &Seek;
    hooks.FTell = &Tell;
    hooks.FFlush = &Flush;
    hooks.FClose = &Close;
    hooks.Remove = &Remove;
    hooks.Error = &BeSilent;
    return hooks;
}
