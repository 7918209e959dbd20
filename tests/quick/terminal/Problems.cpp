#include "TQuickTerminal.h"

#include "TCallThread.h"

/// What the operator is told.
class Problems : public QObject
{
    Q_OBJECT

private slots:
    void aProblemComesAndGoes();
    void theNewestIsFirst();
    void aTextMayChange();
    void anyThreadMayTell();
    void withoutATerminalNothingHappens();

private:
    static QStringList Texts(const TQuickTerminal& terminal)
    {
        QStringList texts;
        const auto* const model = qobject_cast<QAbstractItemModel*>(terminal.Named("Problems"));
        const int role = model->roleNames().key("text");
        for (int row = 0; row < model->rowCount(); ++row)
            texts.append(model->index(row, 0).data(role).toString());
        return texts;
    }

    static QString Word(const char* word) { return QString::fromLatin1(word); }
};

void Problems::aProblemComesAndGoes()
{
    const TQuickTerminal terminal;
    QSignalSpy counts(terminal.Named("Problems"), SIGNAL(countChanged()));
    QSignalSpy firsts(terminal.Named("Problems"), SIGNAL(firstChanged()));
    QCOMPARE(terminal.Get("Problems.count").toInt(), 0);
    QCOMPARE(terminal.Text("Problems.first"), QString());
    CabQuick::SetProblem(Word("coverage"), Word("The disk is full."));
    QCOMPARE(terminal.Get("Problems.count").toInt(), 1);
    QCOMPARE(terminal.Text("Problems.first"), Word("The disk is full."));
    CabQuick::SetProblem(Word("coverage"), Word("The disk is full."));
    QCOMPARE(counts.size(), 1);
    QCOMPARE(firsts.size(), 1);
    CabQuick::ClearProblem(Word("coverage"));
    CabQuick::ClearProblem(Word("coverage"));
    QCOMPARE(terminal.Get("Problems.count").toInt(), 0);
    QCOMPARE(counts.size(), 2);
    QCOMPARE(firsts.size(), 2);
}

void Problems::theNewestIsFirst()
{
    const TQuickTerminal terminal;
    CabQuick::SetProblem(Word("a"), Word("One."));
    CabQuick::SetProblem(Word("b"), Word("Two."));
    QCOMPARE(terminal.Text("Problems.first"), Word("Two."));
    QCOMPARE(Texts(terminal), (QStringList{Word("Two."), Word("One.")}));
    CabQuick::ClearProblem(Word("b"));
    QCOMPARE(terminal.Text("Problems.first"), Word("One."));
}

void Problems::aTextMayChange()
{
    const TQuickTerminal terminal;
    CabQuick::SetProblem(Word("a"), Word("One."));
    CabQuick::SetProblem(Word("a"), Word("Two."));
    QCOMPARE(Texts(terminal), QStringList(Word("Two.")));
    QCOMPARE(terminal.Text("Problems.first"), Word("Two."));
}

void Problems::anyThreadMayTell()
{
    const TQuickTerminal terminal;
    {
        TCallThread thread([] { CabQuick::SetProblem(Word("a"), Word("One.")); });
        thread.wait();
    }
    QTRY_COMPARE_WITH_TIMEOUT(terminal.Text("Problems.first"), Word("One."), Patience);
}

void Problems::withoutATerminalNothingHappens()
{
    CabQuick::SetProblem(Word("a"), Word("One."));
    CabQuick::ClearProblem(Word("a"));
    const TQuickTerminal terminal;
    QCOMPARE(terminal.Get("Problems.count").toInt(), 0);
}

QTEST_GUILESS_MAIN(Problems)
#include "Problems.moc"
