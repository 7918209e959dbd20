#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <random>
#include <string>
#include <vector>

/// What is in a folder: the path of each entry, with the content of a file; nothing for a folder.
using TFolderContent = std::map<std::string, std::optional<std::string>>;

TFolderContent ReadFolder(const std::string& folder);

/// Empties the folder first. Files get their content in the order of their names.
void WriteFolder(const std::string& folder, const TFolderContent& content);

/// The changes of the files in a folder, in their order, and what a power cut may leave of them. Of the file system it
/// is assumed, as of one that keeps a journal:
/// - What was written before a file was synced is on the disk. Of what was written after that, each write may be there,
///   be missing, be there in part, or have left zeros up to its end.
/// - Names in one folder change in the order in which they were changed, up to any point. fsync() of a file makes the
///   change that gave it its name durable, and with it those before; fdatasync() does not. The sync of a folder makes
///   all changes of its names durable. A name is of use only when the names of the folders above it are there.
///
/// May be used from any thread.
class TDiskRecord
{
public:
    /// Begins with what is in @p folder, as if all of it was synced.
    explicit TDiskRecord(const std::string& folder);

    /// Paths are relative; empty is the folder itself. Opened() returns the number of the file.
    int Opened(const std::string& path, bool isMade, bool isEmptied);
    void Wrote(int node, std::int64_t at, const std::string& bytes);
    void Cut(int node, std::int64_t size);
    void Synced(int node, bool hasName);
    void Renamed(const std::string& from, const std::string& to);
    void Removed(const std::string& path);
    void MadeFolder(const std::string& path);

    /// The number of changes and syncs so far.
    std::size_t Steps() const;

    /// What a power cut after the first @p step changes and syncs may leave; random ones are the last @p randomCount.
    /// The first is what is left of synced changes alone, the second one is everything.
    std::vector<TFolderContent> AfterPowerCut(std::size_t step, int randomCount, std::mt19937& random) const;

private:
    enum EKind
    {
        WRITE,
        CUT,
        SYNC,
        SYNC_DATA,
        ENTER, ///< a name in a folder begins to mean a file
        LEAVE,
        MOVE,
    };

    struct tagStep
    {
        EKind kind;
        int node;
        int folder = -1; ///< of the name; of the new name of a file that is moved
        std::string name = {};
        int formerFolder = -1;
        std::string formerName = {};
        std::int64_t at = 0;
        std::string bytes = {};
    };

    struct tagNode
    {
        bool isFolder = false;
        std::string bytes;
        std::map<std::string, int> names;
    };

    /// What has become of a step that was not synced.
    enum EFate
    {
        LOST,
        DONE,
        TORN,
        ZEROS,
    };

    struct tagPlace
    {
        int folder;
        std::string name;
    };

    static bool IsName(EKind kind) { return kind == ENTER || kind == LEAVE || kind == MOVE; }
    tagPlace Place(const std::string& path) const;
    int Find(const std::string& path) const;
    int Add(const tagNode& node);
    std::vector<bool> SyncedBefore(std::size_t step) const;
    TFolderContent Image(std::size_t step, const std::vector<EFate>& fates, std::mt19937& random) const;
    static void Collect(const std::vector<tagNode>& nodes, int folder, const std::string& path,
                        TFolderContent* content);
    static void Apply(const tagStep& step, EFate fate, std::mt19937& random, std::vector<tagNode>* nodes);

    mutable std::mutex m_Mutex;
    std::vector<tagNode> m_Nodes;                    ///< as they were at the beginning; the first is the folder
    std::vector<std::map<std::string, int>> m_Names; ///< as they are now, for each node
    std::vector<tagStep> m_Steps;
};
