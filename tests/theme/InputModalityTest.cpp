#include "theme/InputModality.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalSpy>

namespace brimlight::test {

TEST(InputModality, IsWhatWasPressedLast)
{
    QObject window;
    InputModality modality;
    modality.watch(window);
    const QSignalSpy changes(&modality, &InputModality::changed);
    EXPECT_TRUE(modality.isKeyboard()) << "nothing has been pressed";

    QMouseEvent click(QEvent::MouseButtonPress, {}, {}, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QMouseEvent motion(QEvent::MouseMove, {}, {}, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &click);
    EXPECT_FALSE(modality.isKeyboard());
    QCoreApplication::sendEvent(&window, &key);
    EXPECT_TRUE(modality.isKeyboard());
    QCoreApplication::sendEvent(&window, &motion);
    EXPECT_TRUE(modality.isKeyboard()) << "a pointer that is pushed aside is not used";
    EXPECT_EQ(changes.size(), 2);
}

} // namespace brimlight::test
