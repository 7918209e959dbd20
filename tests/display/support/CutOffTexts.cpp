#include "CutOffTexts.h"

#include "VisibleItems.h"

#include <QCoreApplication>
#include <QVector>

#include <limits>
#include <utility>

namespace {

/// The smallest text, and the smallest figure of a tile.
const int LeastText = 24;
const int LeastFigure = 48;

/// Where the letters of a text are seen.
struct tagSeenText
{
    const QQuickItem* text;
    const QQuickItem* layer;
    QRectF letters;
};

/// Texts of a layer that have letters on those of another one.
void LookForOverlaps(const QList<QQuickItem*>& texts, const QString& view, QStringList* found)
{
    const double tolerance = 2; // a line is a little higher than its letters
    QVector<tagSeenText> before;
    for (const QQuickItem* text : texts) {
        const tagSeenText seen = {text, VisibleItems::Layer(*text),
                                  VisibleItems::Letters(*text) & VisibleItems::SeenPart(*text)};
        for (const tagSeenText& other : std::as_const(before)) {
            const QRectF shared = seen.letters & other.letters;
            if (seen.layer == other.layer && shared.width() > tolerance && shared.height() > tolerance)
                found->append(view + QLatin1String(": ") + VisibleItems::Describe(*other.text) +
                              QLatin1String(" is on ") + VisibleItems::Describe(*text));
        }
        before.append(seen);
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
