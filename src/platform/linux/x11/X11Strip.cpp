#include "platform/linux/x11/X11Strip.h"

#include "platform/linux/x11/X11Connection.h"

#include <algorithm>
#include <cmath>

namespace brimlight {

X11Strip::X11Strip(X11Connection &connection)
    : m_isXWayland(connection.isXWayland())
    , m_sensor(connection)
{
}

void X11Strip::setPlace(const QRect &pixels, bool isHousing, double devicePixelRatio)
{
    m_clicked = pixels;
    if (!isHousing) {
        const double height = m_isXWayland ? waylandEdgeHeight : edgeHeight;
        m_clicked.setHeight(
            std::min(pixels.height(), static_cast<int>(std::ceil(height * devicePixelRatio))));
    }
    m_felt = m_isXWayland ? m_clicked : pixels;
    apply();
}

void X11Strip::setGivesWay(bool gives)
{
    if (gives == m_givesWay)
        return;
    m_givesWay = gives;
    if (m_clicked != m_felt)
        apply();
}

void X11Strip::apply()
{
    m_sensor.setGeometry(m_givesWay ? m_clicked : m_felt);
}

} // namespace brimlight
