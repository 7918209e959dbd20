#pragma once

#include <QImage>
#include <QList>
#include <QQuickItem>
#include <QRectF>
#include <QString>

/// What an operator sees of a window: the items that are drawn, with their places in the window.
namespace VisibleItems {

/// The part of the item that is inside the window and inside every ancestor that clips, in the window's coordinates;
/// empty when nothing of it is seen.
QRectF SeenPart(const QQuickItem& item);

/// As SeenPart(), with what lies beyond the window: a finger that is stopped by the edge of the screen hits it.
QRectF WholePart(const QQuickItem& item);

/// The items that show a text that is not empty, in the order in which they are drawn. Texts of which nothing is seen
/// are not among them.
QList<QQuickItem*> Texts(QQuickItem& root);

/// The enabled items that take a tap, in the order in which they are drawn.
QList<QQuickItem*> Targets(QQuickItem& root);

/// What the target is called: the Accessible name, or the text, of itself or of the nearest item around it that has
/// one.
QString NameOf(const QQuickItem& target);

/// The enabled target with this name, the one that is drawn last; null when there is none.
QQuickItem* Target(QQuickItem& root, const QString& name);

/// The visible item of this object name below @p root, or @p root itself; null when there is none. What a Repeater or a
/// Loader has made is found too: it is a child for the eye alone.
QQuickItem* Named(QQuickItem& root, const QString& name);

/// What of the display an item belongs to: the pages, or the questions above them.
const QQuickItem* Layer(const QQuickItem& item);

/// The text that the item shows.
QString Text(const QQuickItem& item);

/// The size of the letters in pixels, after a text has shrunk to its room.
int ShownSize(const QQuickItem& text);

/// A name for the messages of a test: class, text and place.
QString Describe(const QQuickItem& item);

/// Where the letters of a text are, in the window's coordinates: a text may be larger or smaller than its item.
QRectF Letters(const QQuickItem& text);

/// What is wrong with how a text is shown: it is elided, wider than its item, broken within a word, or outside of
/// what is seen of the window; empty when nothing is. A text in an area that scrolls may go on above and below what is
/// seen of the area.
QString WhatIsCutOff(const QQuickItem& text);

} // namespace VisibleItems
