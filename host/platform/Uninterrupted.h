#pragma once

#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>

/// Makes a call to the system again as long as signals interrupt it. The drivers of some sticks run as programs; with
/// them, a signal interrupts calls that it does not interrupt on other drives.
///
/// @code
/// const int file = Uninterrupted([&] { return open(path, O_RDONLY | O_CLOEXEC); });
/// @endcode
template <class Call>
auto Uninterrupted(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

namespace Detail {

template <class Put>
bool PutAll(const char* data, std::size_t length, Put put)
{
    std::size_t done = 0;
    while (done < length) {
        const ssize_t count = Uninterrupted([&] { return put(data + done, length - done, done); });
        if (count == 0)
            errno = EIO; // the system gives no reason
        if (count <= 0)
            return false;
        done += static_cast<std::size_t>(count);
    }
    return true;
}

} // namespace Detail

/// Writes all of @p data, in as many calls as that takes. Returns false with errno set.
inline bool WriteAll(int file, const char* data, std::size_t length)
{
    return Detail::PutAll(data, length,
                          [file](const char* from, std::size_t left, std::size_t) { return write(file, from, left); });
}

/// The same at the position @p at of the file.
inline bool WriteAllAt(int file, const char* data, std::size_t length, off_t at)
{
    return Detail::PutAll(data, length, [file, at](const char* from, std::size_t left, std::size_t done) {
        return pwrite(file, from, left, at + static_cast<off_t>(done));
    });
}
