#include "controls/ControlsFixture.h"

#include <QClipboard>
#include <QGuiApplication>

namespace brimlight::test {
namespace {

struct Kind
{
    const char *name;
    QByteArray type;
};

void PrintTo(const Kind &kind, std::ostream *out)
{
    *out << kind.name;
}

/// What holds for one line as for many.
class TextControl : public ControlsTest, public testing::WithParamInterface<Kind>
{
protected:
    void showIt(const QByteArray &extra = {})
    {
        show(GetParam().type +
             " { objectName: \"it\"; x: 10; y: 10; width: 200; label: \"Title\"; placeholder: \"What for?\"; "
             "colors: "
             "root.colors; onEdited: text => root.last = text; " +
             extra +
             " }\nTextButton { objectName: \"next\"; y: 300; text: \"Next\"; colors: root.colors; onClicked: "
             "++root.presses }");
    }
    QString text() { return item("it")->property("text").toString(); }
    QQuickItem *input() const { return scene.withRole(QAccessible::EditableText).value(0); }
    QStringList menu() const { return scene.namesOf(QAccessible::MenuItem); }
    void choose(const QString &name)
    {
        for (const QQuickItem *entry : scene.withRole(QAccessible::MenuItem)) {
            if (entry->property("text") == name)
                scene.click(*entry);
        }
        settle();
    }
};

} // namespace

TEST_P(TextControl, TakesWhatIsTyped)
{
    showIt();
    click("it");
    type("milk");
    EXPECT_EQ(text(), QStringLiteral("milk"));
    EXPECT_EQ(last(), QStringLiteral("milk"));
    key(Qt::Key_Left);
    key(Qt::Key_Backspace);
    EXPECT_EQ(last(), QStringLiteral("mik"));
}

TEST_P(TextControl, SaysWhatItIsAndTakesTheKeyboard)
{
    showIt("text: \"milk\"");
    QQuickItem *input = this->input();
    ASSERT_TRUE(input);
    QAccessibleInterface *known = QAccessible::queryAccessibleInterface(input);
    EXPECT_EQ(known->text(QAccessible::Name), QStringLiteral("Title"));
    EXPECT_TRUE(known->state().editable);
    ASSERT_TRUE(known->textInterface());
    EXPECT_EQ(known->textInterface()->characterCount(), 4);
    EXPECT_TRUE(input->flags().testFlag(QQuickItem::ItemAcceptsInputMethod))
        << "by this the panel knows that it has to ask for the keyboard";
}

TEST_P(TextControl, IsCopiedPastedAndUndoneByKeys)
{
    showIt("text: \"milk\"");
    focus("it");
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(item("it")->property("selectedText").toString(), QStringLiteral("milk"));
    key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("milk"));
    EXPECT_EQ(text(), QString());
    key(Qt::Key_V, Qt::ControlModifier);
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(last(), QStringLiteral("milkmilk"));
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(text(), QStringLiteral("milkmilk"));
}

TEST_P(TextControl, ADragSelects)
{
    showIt("text: \"some milk\"");
    QQuickItem *input = this->input();
    const QRectF frame = Scene::frameOf(*input);
    const QPoint from = (frame.topLeft() + QPointF(1, 8)).toPoint();
    QTest::mousePress(&view, Qt::LeftButton, {}, from);
    QTest::mouseMove(&view, from + QPoint(20, 0));
    QTest::mouseMove(&view, from + QPoint(150, 0));
    QTest::mouseRelease(&view, Qt::LeftButton, {}, from + QPoint(150, 0));
    EXPECT_EQ(item("it")->property("selectedText").toString(), QStringLiteral("some milk"));
}

TEST_P(TextControl, ThePlaceholderIsThereWhileNothingElseIs)
{
    showIt();
    EXPECT_TRUE(scene.texts().contains(QStringLiteral("What for?")));
    focus("it");
    type("m");
    EXPECT_FALSE(scene.texts().contains(QStringLiteral("What for?")));
    key(Qt::Key_Backspace);
    EXPECT_TRUE(scene.texts().contains(QStringLiteral("What for?")));
}

TEST_P(TextControl, ARightClickOffersWhatCanBeDone)
{
    showIt("text: \"milk\"");
    QGuiApplication::clipboard()->setText(QStringLiteral("bread"));
    QTest::mouseClick(&view, Qt::RightButton, {}, Scene::middle(*input()).toPoint());
    settle();
    EXPECT_EQ(menu(), (QStringList{QStringLiteral("Undo"), QStringLiteral("Cut"), QStringLiteral("Copy"),
                                   QStringLiteral("Paste"), QStringLiteral("Select All")}));
    choose(QStringLiteral("Select All"));
    EXPECT_TRUE(menu().isEmpty());
    EXPECT_EQ(item("it")->property("selectedText").toString(), QStringLiteral("milk"));
    QTest::mouseClick(&view, Qt::RightButton, {}, Scene::middle(*input()).toPoint());
    settle();
    choose(QStringLiteral("Paste"));
    EXPECT_EQ(text(), QStringLiteral("bread"));
    EXPECT_EQ(last(), QStringLiteral("bread"));
    EXPECT_TRUE(input()->hasActiveFocus()) << "typing goes on";
}

TEST_P(TextControl, TabGoesOn)
{
    showIt();
    key(Qt::Key_Tab);
    EXPECT_TRUE(input()->hasActiveFocus());
    EXPECT_TRUE(marks(*input()));
    key(Qt::Key_Tab);
    EXPECT_TRUE(item("next")->hasActiveFocus());
    key(Qt::Key_Backtab);
    EXPECT_TRUE(input()->hasActiveFocus());
}

TEST_P(TextControl, WhatIsNotAvailableIsDimmedAndTakesNothing)
{
    showIt("available: false");
    EXPECT_LT(item("it")->opacity(), 0.5);
    click("it");
    type("milk");
    EXPECT_EQ(text(), QString());
}

INSTANTIATE_TEST_SUITE_P(All, TextControl,
                         testing::Values(Kind{"field", "TextField"}, Kind{"editor", "TextEditor"}),
                         [](const auto &info) { return std::string(info.param.name); });

using TextField = ControlsTest;

TEST_F(TextField, ReturnAccepts)
{
    show("TextField { objectName: \"it\"; label: \"Title\"; colors: root.colors; onAccepted: { root.last = "
         "text; clear(); "
         "} }");
    focus("it");
    type("milk");
    key(Qt::Key_Return);
    EXPECT_EQ(last(), QStringLiteral("milk"));
    EXPECT_EQ(item("it")->property("text").toString(), QString());
}

using TextEditor = ControlsTest;

TEST_F(TextEditor, ReturnBeginsALineAndTheCaretStaysInSight)
{
    show("TextEditor { objectName: \"it\"; width: 200; height: 60; label: \"Note\"; colors: root.colors; "
         "onEdited: text "
         "=> root.last = text }");
    focus("it");
    for (int line = 0; line < 12; ++line) {
        type("m");
        key(Qt::Key_Return);
    }
    EXPECT_EQ(last().count(QLatin1Char('\n')), 12);
    const QQuickItem *edit = scene.withRole(QAccessible::EditableText).value(0);
    const QRectF caret = edit->mapRectToScene(edit->property("cursorRectangle").toRectF());
    EXPECT_TRUE(QRectF(0, 0, 200, 60).contains(caret)) << caret.y();
    key(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_GE(edit->mapRectToScene(edit->property("cursorRectangle").toRectF()).top(), 0);
}

TEST_F(TextEditor, ATextOfItsOwnerIsNoEdit)
{
    show("TextEditor { objectName: \"it\"; label: \"Note\"; colors: root.colors; text: \"old\"; onEdited: "
         "++root.presses }");
    item("it")->setProperty("text", QStringLiteral("new"));
    EXPECT_EQ(presses(), 0);
}

} // namespace brimlight::test
