// A field whose text the program corrects while the user types.
#include "UserInput.h"
#include "qt/binders/Binders.h"
#include "qt/kit/TextConversion.h"

#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace sonavel {
namespace {

class TextFieldTest : public testing::Test {
protected:
    TextFieldTest()
    {
        bind(field, widget);
        field.action.set([this] {
            ++reports;
            QString text = toQString(field.stringValue());
            field.setStringValue(toText(text.replace("  ", " ").remove(';').left(20)));
        });
        widget.show();
        widget.activateWindow();
        widget.setFocus();
    }

    void compose(const QString& preedit, const QString& committed = {})
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(committed);
        QApplication::sendEvent(&widget, &event);
    }

    TextField field;
    QLineEdit widget;
    int reports = 0;
};

TEST_F(TextFieldTest, TheCaretStaysWhereTheUserTypes)
{
    const struct {
        const char* before;
        int caret;
        const char* typed;
        const char* after;
        int caretAfter;
    } cases[] = {{"Radio One", 5, " ", "Radio One", 6}, {"Radio One", 6, " ", "Radio One", 6},
        {"Radio One", 5, ";", "Radio One", 5}, {"Radio One", 0, "a;b", "abRadio One", 2},
        {"Radio One", 9, "  x", "Radio One x", 11}, {"0123456789012345678", 3, "ab", "012ab345678901234567", 5},
        {"01234567890123456789", 20, "a", "01234567890123456789", 20}};
    for (const auto& [before, caret, typed, after, caretAfter] : cases) {
        field.setStringValue(before);
        widget.setCursorPosition(caret);
        if (QString(typed).size() == 1)
            QTest::keyClicks(&widget, typed);
        else
            widget.insert(typed);
        EXPECT_EQ(widget.text().toStdString(), after);
        EXPECT_EQ(field.stringValue(), Text(after));
        EXPECT_EQ(widget.cursorPosition(), caretAfter) << before << " + " << typed;
    }
}

TEST_F(TextFieldTest, UndoGoesBackBehindACorrection)
{
    QTest::keyClicks(&widget, "One");
    widget.insert(";pasted;");
    EXPECT_EQ(widget.text(), "Onepasted");
    for (int turn = 0; turn < 5 && widget.isUndoAvailable(); ++turn)
        QTest::keyClick(&widget, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(widget.text(), "");
    EXPECT_EQ(field.stringValue(), Text(""));
    for (int turn = 0; turn < 5; ++turn)
        QTest::keyClick(&widget, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(widget.text(), "Onepasted");
    EXPECT_EQ(field.stringValue(), Text("Onepasted"));
}

TEST_F(TextFieldTest, ACompositionIsLeftAloneUntilItEnds)
{
    QTest::keyClicks(&widget, "A");
    reports = 0;
    compose("に");
    compose("に;  ほ", "日;");
    EXPECT_EQ(reports, 0);
    EXPECT_EQ(field.stringValue(), Text("A"));
    compose("", "本");
    QApplication::processEvents();
    EXPECT_EQ(widget.text(), "A日本");
    EXPECT_EQ(field.stringValue(), Text("A日本"));
}

TEST_F(TextFieldTest, ACompositionOverASelectionThatEndsWithNothingIsReported)
{
    QTest::keyClicks(&widget, "Radio");
    widget.selectAll();
    compose("x");
    QApplication::processEvents();
    compose("");
    QApplication::processEvents();
    EXPECT_EQ(widget.text(), "");
    EXPECT_EQ(field.stringValue(), Text(""));
}

TEST_F(TextFieldTest, ATextOfTheProgramEndsACompositionAndIsNotReported)
{
    compose("half a wo");
    reports = 0;
    field.setStringValue("Given");
    const QImage shown = widget.grab().toImage();
    compose("");
    EXPECT_EQ(widget.grab().toImage(), shown) << "what was composed is still seen";
    QApplication::processEvents();
    EXPECT_EQ(widget.displayText(), "Given");
    EXPECT_EQ(reports, 0);
    const std::string veryLong(100'000, 'x');
    field.setStringValue(veryLong);
    EXPECT_EQ(widget.text().size(), 100'000);
}

} // namespace
} // namespace sonavel
