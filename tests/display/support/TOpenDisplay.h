#pragma once

#include <QImage>
#include <QList>
#include <QMap>
#include <QPointF>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

class QQmlEngine;

/// The real display in a window of a test: a terminal of its own in a folder that is removed at the end, and the pages
/// of the program. Works offscreen, on the software renderer.
///
/// @code
/// TOpenDisplay display(QSize(1280, 800));
/// QVERIFY2(display.IsOpen(), qPrintable(display.Problem()));
/// display.ShowPage(QLatin1String("settings-units"));
/// QVERIFY(display.Tap(QLatin1String("Acre")));
/// @endcode
///
/// One at a time.
class TOpenDisplay
{
public:
    /// @param language such as "de"; empty for that of a first start.
    /// @param first values of parameters, by their names, that are stored before the start.
    explicit TOpenDisplay(const QSize& size, const QString& language = QString(),
                          const QMap<QString, QVariant>& first = {});
    ~TOpenDisplay();

    TOpenDisplay(const TOpenDisplay&) = delete;
    TOpenDisplay& operator=(const TOpenDisplay&) = delete;

    bool IsOpen() const;
    QString Problem() const;

    /// All pages by the names of the command line: "work", "settings-units"...
    static QStringList Pages();
    void ShowPage(const QString& page);

    /// The pages, and everything that opens over them, by the names of its table: "keypad", "question"... What opens
    /// needs the example.
    static QStringList Views();

    /// Shows a view as the operator would. Closes the one before it.
    void Show(const QString& view);

    /// Makes the example field, and waits until its job is there.
    void MakeExample();

    /// Drives on the simulated field as long as the receiver takes for so many positions, with the implement working.
    /// The tractor stands then, and the figures are those of its place. Needs the example; drives once.
    void Drive(int positions);

    void Resize(const QSize& size);

    /// Ends the terminal and starts it again in the same folder, with the same pages.
    void Restart();

    QVariant Parameter(const QString& name) const;
    void SetParameter(const QString& name, const QVariant& value);

    /// The Quantity objects of the pages that exist now.
    QList<QObject*> Quantities() const;

    /// The texts of the lists of all quantities that the pages have now.
    QStringList ExampleTexts() const;

    /// Of the terminal, with the singletons of QML.
    QQmlEngine& Engine() const;

    QString DataFolder() const;
    QQuickWindow& Window() const;

    /// What holds everything that is drawn.
    QQuickItem& Content() const;

    /// What is drawn now, in the pixels of the window.
    QImage Picture();

    /// Taps the target with this name, or a place of the window. False when there is no such target.
    bool Tap(const QString& name);
    void Tap(const QPointF& place);

    /// Presses and releases keys.
    void Type(const QString& text);
    void Press(Qt::Key key);

    /// Everything that Qt and QML have complained of since the start, and what was said to be expected taken out.
    QStringList Warnings() const;

private:
    struct tagState;

    bool Start();
    void Settle() const;
    void Stop();

    std::unique_ptr<tagState> m_State;
};
