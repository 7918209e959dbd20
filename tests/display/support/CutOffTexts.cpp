#include "CutOffTexts.h"

#include "VisibleItems.h"

#include <QCoreApplication>

#include <limits>

namespace {

/// The smallest text, and the smallest figure of a tile.
const int LeastText = 24;
const int LeastFigure = 48;

/// Texts of a layer that have letters on those of another one.
void LookForOverlaps(const QList<QQuickItem*>& texts, const QString& view, QStringList* found)
{
    const double tolerance = 2; // a line is a little higher than its letters
    for (int first = 0; first < texts.size(); ++first) {
        for (int second = first + 1; second < texts.size(); ++second) {
            const QQuickItem& one = *texts.at(first);
            const QQuickItem& other = *texts.at(second);
            const QRectF shared = VisibleItems::Letters(one) & VisibleItems::SeenPart(one) &
                                  VisibleItems::Letters(other) & VisibleItems::SeenPart(other);
            if (VisibleItems::Layer(one) == VisibleItems::Layer(other) && shared.width() > tolerance &&
                shared.height() > tolerance)
                found->append(view + QLatin1String(": ") + VisibleItems::Describe(one) + QLatin1String(" is on ") +
                              VisibleItems::Describe(other));
        }
    }
}

void Look(TOpenDisplay& display, const QString& view, QStringList* found)
{
    const QList<QQuickItem*> texts = VisibleItems::Texts(display.Content());
    if (texts.isEmpty())
        found->append(view + QLatin1String(": no text at all"));
    for (const QQuickItem* text : texts) {
        const QString problem = VisibleItems::WhatIsCutOff(*text);
        if (!problem.isEmpty())
            found->append(view + QLatin1String(": ") + VisibleItems::Describe(*text) + QLatin1String(" is ") + problem);
        const int letters = VisibleItems::ShownSize(*text);
        const bool isFigure = text->objectName() == QLatin1String("figure");
        if (letters < (isFigure ? LeastFigure : LeastText))
            found->append(view + QLatin1String(": ") + VisibleItems::Describe(*text) +
                          QString::fromLatin1(" has letters of %1").arg(letters));
    }
    LookForOverlaps(texts, view, found);
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
