#include "Operations.h"

#include "DiskRecord.h"

#include <QDirIterator>

#include <sys/mman.h>

#include <algorithm>
#include <array>
#include <stdexcept>

struct TPromises::tagShared
{
    struct tagPromise
    {
        int number;
        std::size_t steps;
    };

    std::size_t count;
    std::array<tagPromise, 4096> promises;
};

TPromises::TPromises() : m_Shared(nullptr), m_Record(nullptr)
{
    void* const memory = mmap(nullptr, sizeof(tagShared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        throw std::runtime_error("no shared memory");
    m_Shared = static_cast<tagShared*>(memory);
}

TPromises::~TPromises() { munmap(m_Shared, sizeof(tagShared)); }

void TPromises::Begin(const TDiskRecord* record)
{
    m_Shared->count = 0;
    m_Record = record;
}

void TPromises::Make(int number)
{
    m_Shared->promises.at(m_Shared->count) = {number, m_Record ? m_Record->Steps() : 0};
    ++m_Shared->count; // last: a promise that is counted is complete
}

std::vector<int> TPromises::All() const { return Before(SIZE_MAX); }

std::vector<int> TPromises::Before(std::size_t steps) const
{
    std::vector<int> numbers;
    for (std::size_t i = 0; i < m_Shared->count; ++i) {
        if (m_Shared->promises.at(i).steps <= steps)
            numbers.push_back(m_Shared->promises.at(i).number);
    }
    return numbers;
}

std::vector<tagOperation> AllOperations()
{
    std::vector<tagOperation> all;
    for (const auto& some : {LogOperations(), FileOperations(), FieldOperations(), StoreOperations()})
        all.insert(all.end(), some.begin(), some.end());
    return all;
}

QByteArray Leftovers(const QString& folder)
{
    QByteArray names;
    QDirIterator entries(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        entries.next();
        const QString name = entries.fileName();
        if (name.startsWith(QLatin1Char('.')) || name.endsWith(QLatin1String(".new")))
            names += "left over: " + name.toUtf8() + ' ';
    }
    return names.trimmed();
}
