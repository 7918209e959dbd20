#include "DiskRecord.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

constexpr std::int64_t Sector = 512;

using TLock = std::lock_guard<std::mutex>;

} // namespace

TFolderContent ReadFolder(const std::string& folder)
{
    TFolderContent content;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        std::optional<std::string>& bytes = content[fs::relative(entry.path(), folder).string()];
        if (entry.is_directory())
            continue;
        std::ifstream file(entry.path(), std::ios::binary);
        bytes.emplace(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return content;
}

void WriteFolder(const std::string& folder, const TFolderContent& content)
{
    fs::remove_all(folder);
    fs::create_directories(folder);
    for (const auto& [path, bytes] : content) {
        const fs::path whole = fs::path(folder) / path;
        if (!bytes) {
            fs::create_directories(whole);
            continue;
        }
        std::ofstream file(whole, std::ios::binary);
        if (!file.write(bytes->data(), static_cast<std::streamsize>(bytes->size())).flush())
            throw std::runtime_error("cannot write " + whole.string());
    }
}

TDiskRecord::TDiskRecord(const std::string& folder)
{
    Add({true, {}, {}});
    for (const auto& [path, bytes] : ReadFolder(folder)) { // a folder comes before what is in it
        const tagPlace place = Place(path);
        const int node = Add({!bytes, bytes.value_or(std::string()), {}});
        m_Nodes[static_cast<std::size_t>(place.folder)].names[place.name] = node;
        m_Names[static_cast<std::size_t>(place.folder)][place.name] = node;
    }
}

int TDiskRecord::Add(const tagNode& node)
{
    m_Nodes.push_back(node);
    m_Names.push_back(node.names);
    return static_cast<int>(m_Nodes.size()) - 1;
}

TDiskRecord::tagPlace TDiskRecord::Place(const std::string& path) const
{
    const std::size_t separator = path.rfind('/');
    if (separator == std::string::npos)
        return {0, path};
    return {Find(path.substr(0, separator)), path.substr(separator + 1)};
}

int TDiskRecord::Find(const std::string& path) const
{
    if (path.empty())
        return 0;
    const tagPlace place = Place(path);
    if (place.folder < 0)
        return -1;
    const auto& names = m_Names[static_cast<std::size_t>(place.folder)];
    const auto found = names.find(place.name);
    return found == names.end() ? -1 : found->second;
}

int TDiskRecord::Opened(const std::string& path, bool isMade, bool isEmptied)
{
    const TLock lock(m_Mutex);
    if (!isMade) {
        const int node = Find(path);
        if (isEmptied && node >= 0)
            m_Steps.push_back({CUT, node});
        return node;
    }
    const tagPlace place = Place(path);
    const int node = Add({});
    m_Names[static_cast<std::size_t>(place.folder)][place.name] = node;
    m_Steps.push_back({ENTER, node, place.folder, place.name});
    return node;
}

void TDiskRecord::Wrote(int node, std::int64_t at, const std::string& bytes)
{
    const TLock lock(m_Mutex);
    m_Steps.push_back({WRITE, node, -1, {}, -1, {}, at, bytes});
}

void TDiskRecord::Cut(int node, std::int64_t size)
{
    const TLock lock(m_Mutex);
    m_Steps.push_back({CUT, node, -1, {}, -1, {}, size});
}

void TDiskRecord::Synced(int node, bool hasName)
{
    const TLock lock(m_Mutex);
    m_Steps.push_back({hasName ? SYNC : SYNC_DATA, node});
}

void TDiskRecord::Renamed(const std::string& from, const std::string& to)
{
    const TLock lock(m_Mutex);
    const int node = Find(from);
    const tagPlace before = Place(from);
    const tagPlace after = Place(to);
    m_Names[static_cast<std::size_t>(before.folder)].erase(before.name);
    m_Names[static_cast<std::size_t>(after.folder)][after.name] = node;
    m_Steps.push_back({MOVE, node, after.folder, after.name, before.folder, before.name});
}

void TDiskRecord::Removed(const std::string& path)
{
    const TLock lock(m_Mutex);
    const tagPlace place = Place(path);
    m_Steps.push_back({LEAVE, Find(path), place.folder, place.name});
    m_Names[static_cast<std::size_t>(place.folder)].erase(place.name);
}

void TDiskRecord::MadeFolder(const std::string& path)
{
    const TLock lock(m_Mutex);
    const tagPlace place = Place(path);
    const int node = Add({true, {}, {}});
    m_Names[static_cast<std::size_t>(place.folder)][place.name] = node;
    m_Steps.push_back({ENTER, node, place.folder, place.name});
}

std::size_t TDiskRecord::Steps() const
{
    const TLock lock(m_Mutex);
    return m_Steps.size();
}

/// For each of the first steps, whether it is on the disk whatever happens.
std::vector<bool> TDiskRecord::SyncedBefore(std::size_t step) const
{
    std::vector<bool> synced(step, false);
    const auto syncNames = [&](int folder, std::size_t end) {
        for (std::size_t i = 0; i < end; ++i) {
            const tagStep& earlier = m_Steps[i];
            if (IsName(earlier.kind) && (earlier.folder == folder || earlier.formerFolder == folder))
                synced[i] = true;
        }
    };
    for (std::size_t at = 0; at < step; ++at) {
        const tagStep& sync = m_Steps[at];
        if (sync.kind != SYNC && sync.kind != SYNC_DATA)
            continue;
        std::size_t named = 0; // behind the step that gave the file its name
        for (std::size_t i = 0; i < at; ++i) {
            if (m_Steps[i].node != sync.node)
                continue;
            if (m_Steps[i].kind == ENTER || m_Steps[i].kind == MOVE)
                named = i + 1;
            else if (m_Steps[i].kind == WRITE || m_Steps[i].kind == CUT)
                synced[i] = true;
        }
        if (m_Nodes[static_cast<std::size_t>(sync.node)].isFolder)
            syncNames(sync.node, at);
        else if (sync.kind == SYNC && named > 0)
            syncNames(m_Steps[named - 1].folder, named);
    }
    return synced;
}

void TDiskRecord::Apply(const tagStep& step, EFate fate, std::mt19937& random, std::vector<tagNode>* nodes)
{
    const auto of = [nodes](int node) -> tagNode& { return (*nodes)[static_cast<std::size_t>(node)]; };
    if (step.kind == ENTER) {
        of(step.folder).names[step.name] = step.node;
    } else if (step.kind == LEAVE) {
        of(step.folder).names.erase(step.name);
    } else if (step.kind == MOVE) {
        of(step.formerFolder).names.erase(step.formerName);
        of(step.folder).names[step.name] = step.node;
    } else if (step.kind == CUT) {
        of(step.node).bytes.resize(static_cast<std::size_t>(step.at), '\0');
    } else if (step.kind == WRITE) {
        std::string& bytes = of(step.node).bytes;
        std::int64_t length = static_cast<std::int64_t>(step.bytes.size());
        if (fate == TORN) { // at the end of a sector, or in it
            length = std::uniform_int_distribution<std::int64_t>(0, length - 1)(random);
            if (random() % 2 == 0)
                length = std::max(((step.at + length) / Sector) * Sector - step.at, std::int64_t{0});
        }
        const std::size_t end = static_cast<std::size_t>(step.at + length);
        if (bytes.size() < end)
            bytes.resize(end, '\0');
        if (fate != ZEROS)
            bytes.replace(static_cast<std::size_t>(step.at), static_cast<std::size_t>(length), step.bytes, 0,
                          static_cast<std::size_t>(length));
    }
}

void TDiskRecord::Collect(const std::vector<tagNode>& nodes, int folder, const std::string& path,
                          TFolderContent* content)
{
    for (const auto& [name, number] : nodes[static_cast<std::size_t>(folder)].names) {
        const tagNode& node = nodes[static_cast<std::size_t>(number)];
        const std::string whole = path + name;
        (*content)[whole] = node.isFolder ? std::nullopt : std::optional<std::string>(node.bytes);
        if (node.isFolder)
            Collect(nodes, number, whole + '/', content);
    }
}

TFolderContent TDiskRecord::Image(std::size_t step, const std::vector<EFate>& fates, std::mt19937& random) const
{
    std::vector<tagNode> nodes = m_Nodes;
    for (std::size_t i = 0; i < step; ++i) {
        if (fates[i] != LOST)
            Apply(m_Steps[i], fates[i], random, &nodes);
    }
    TFolderContent content;
    Collect(nodes, 0, std::string(), &content);
    return content;
}

std::vector<TFolderContent> TDiskRecord::AfterPowerCut(std::size_t step, int randomCount, std::mt19937& random) const
{
    const TLock lock(m_Mutex);
    const std::vector<bool> synced = SyncedBefore(step);
    std::vector<EFate> durable(step, LOST);
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < step; ++i) {
        if (synced[i])
            durable[i] = DONE;
        else if (m_Steps[i].kind != SYNC && m_Steps[i].kind != SYNC_DATA)
            open.push_back(i);
    }
    std::vector<TFolderContent> images{Image(step, durable, random)};
    if (open.empty())
        return images;
    images.push_back(Image(step, std::vector<EFate>(step, DONE), random));

    // Names of one folder change in their order.
    const auto withNamesBefore = [&](std::vector<EFate> fates, std::size_t last) {
        for (const std::size_t i : open) {
            if (i < last && IsName(m_Steps[i].kind) && m_Steps[i].folder == m_Steps[last].folder)
                fates[i] = DONE;
        }
        fates[last] = DONE;
        return fates;
    };
    for (const std::size_t one : open) {
        std::vector<EFate> fates = durable;
        fates[one] = DONE;
        images.push_back(Image(step, IsName(m_Steps[one].kind) ? withNamesBefore(durable, one) : fates, random));
    }
    std::map<int, std::vector<std::size_t>> openNames; // by folder
    for (const std::size_t i : open) {
        if (IsName(m_Steps[i].kind))
            openNames[m_Steps[i].folder].push_back(i);
    }
    for (int count = 0; count < randomCount; ++count) {
        std::vector<EFate> fates = durable;
        for (const auto& [folder, names] : openNames) {
            const std::size_t done = random() % (names.size() + 1);
            if (done > 0)
                fates = withNamesBefore(fates, names[done - 1]);
        }
        for (const std::size_t i : open) {
            if (m_Steps[i].kind == WRITE)
                fates[i] = static_cast<EFate>(random() % 4);
            else if (m_Steps[i].kind == CUT)
                fates[i] = random() % 2 == 0 ? DONE : LOST;
        }
        images.push_back(Image(step, fates, random));
    }
    return images;
}
