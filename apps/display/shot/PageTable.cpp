#include "display/shot/PageTable.h"

#include <algorithm>

const tagPage* FindPage(const QString& name)
{
    const auto* const page = std::find_if(Pages.begin(), Pages.end(),
                                          [&name](const tagPage& row) { return name == QLatin1String(row.name); });
    return page == Pages.end() ? nullptr : page;
}

QStringList PageNames()
{
    QStringList names;
    for (const tagPage& page : Pages)
        names.append(QLatin1String(page.name));
    return names;
}
