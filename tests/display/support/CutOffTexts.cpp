#include "CutOffTexts.h"

#include "VisibleItems.h"

#include <QCoreApplication>

#include <limits>

namespace {

void Look(TOpenDisplay& display, const QString& view, QStringList* found)
{
    const QList<QQuickItem*> texts = VisibleItems::Texts(display.Content());
    if (texts.isEmpty())
        found->append(view + QLatin1String(": no text at all"));
    for (const QQuickItem* text : texts) {
        const QString problem = VisibleItems::WhatIsCutOff(*text);
        if (!problem.isEmpty())
            found->append(view + QLatin1String(": ") + VisibleItems::Describe(*text) + QLatin1String(" is ") + problem);
    }
}

QStringList LookAtAll(TOpenDisplay& display, int mostPagesOfList)
{
    const QString below = QCoreApplication::translate("PageTurner", "Rows below");
    const QStringList pages = TOpenDisplay::Pages();
    QStringList found;
    for (const QString& view : TOpenDisplay::Views()) {
        display.Show(view);
        Look(display, view, &found);
        for (int page = 1; page < mostPagesOfList && pages.contains(view) && display.Tap(below); ++page)
            Look(display, view, &found);
    }
    found.removeDuplicates(); // what is on every page
    return found;
}

} // namespace

QStringList CutOffTexts(TOpenDisplay& display) { return LookAtAll(display, 1); }

QStringList CutOffTextsOfAllRows(TOpenDisplay& display) { return LookAtAll(display, std::numeric_limits<int>::max()); }
