#include "logs/TUserLogAccessor.h"

#include "logs/TUserDiagnosticLogProxy.h"

TUserLogAccessor* UserLogAccessorPtr = nullptr;

namespace {

struct tagCategoryName
{
    ELoggingCategory category;
    const char* name;
};

constexpr tagCategoryName CategoryNames[] = {
    {LOG_CATEGORY_CRITICAL, QT_TRANSLATE_NOOP("TUserLogAccessor", "Critical")},
    {LOG_CATEGORY_NORMAL, QT_TRANSLATE_NOOP("TUserLogAccessor", "Normal")},
    {LOG_CATEGORY_TRIVIAL, QT_TRANSLATE_NOOP("TUserLogAccessor", "Trivial")},
};

} // namespace

TUserLogAccessor::TUserLogAccessor() = default;
TUserLogAccessor::~TUserLogAccessor() = default;

bool TUserLogAccessor::AddEntry(EDiagnosticComponent component, EDiagnosticType type, int code, const QString& text1,
                                const QString& text2)
{
    return TUserDiagnosticLogProxy().AddEntry(component, type, code, text1, text2);
}

QString TUserLogAccessor::GetLoggingCategoryName(ELoggingCategory category) const
{
    for (const tagCategoryName& row : CategoryNames) {
        if (row.category == category)
            return tr(row.name);
    }
    return QString();
}
