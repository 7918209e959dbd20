#include "stores/TChangeAuthor.h"

#include <algorithm>
#include <iterator>

namespace {

struct tagAuthorName
{
    EChangeAuthor author;
    const char* name;
};

// The names are in stored data: they never change.
constexpr tagAuthorName Names[] = {
    {CHANGE_AUTHOR_LIBRARY, "library"}, {CHANGE_AUTHOR_OPERATOR, "operator"}, {CHANGE_AUTHOR_TOOL, "tool"},
    {CHANGE_AUTHOR_IMPORT, "import"},   {CHANGE_AUTHOR_RESTORE, "restore"},   {CHANGE_AUTHOR_UNDO, "undo"},
    {CHANGE_AUTHOR_REPAIR, "repair"},
};

thread_local EChangeAuthor CurrentAuthor = CHANGE_AUTHOR_LIBRARY;

} // namespace

QString ChangeAuthorName(EChangeAuthor author)
{
    const auto row = std::find_if(std::begin(Names), std::end(Names),
                                  [author](const tagAuthorName& name) { return name.author == author; });
    return row == std::end(Names) ? QString() : QString::fromLatin1(row->name);
}

TChangeAuthor::TChangeAuthor(EChangeAuthor author) : m_Outer(CurrentAuthor) { CurrentAuthor = author; }

TChangeAuthor::~TChangeAuthor() { CurrentAuthor = m_Outer; }

EChangeAuthor TChangeAuthor::Current() { return CurrentAuthor; }
