#include "theme/InputModality.h"

#include <QEvent>

namespace brimlight {

bool InputModality::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        setKeyboard(true);
        break;
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
        setKeyboard(false);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void InputModality::setKeyboard(bool isKeyboard)
{
    if (isKeyboard == m_isKeyboard)
        return;
    m_isKeyboard = isKeyboard;
    Q_EMIT changed();
}

} // namespace brimlight
