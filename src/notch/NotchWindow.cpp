#include "notch/NotchWindow.h"

#include <QQuickItem>

// Static libraries: naming the registrations keeps the linker from dropping them.
void qml_register_types_Brimlight_Core();
void qml_register_types_Brimlight_Theme();
void qml_register_types_Brimlight_Grid();
void qml_register_types_Brimlight_Notch();

namespace brimlight {
namespace {

using Registration = void (*)();
[[gnu::used]] const Registration registrations[] = {
    &qml_register_types_Brimlight_Core, &qml_register_types_Brimlight_Theme, &qml_register_types_Brimlight_Grid,
    &qml_register_types_Brimlight_Notch};

bool takesText(const QQuickItem *item)
{
    return item && item->flags().testFlag(QQuickItem::ItemAcceptsInputMethod);
}

} // namespace

NotchWindow::NotchWindow(const SurfaceFactory &makeSurface) : m_view(&m_engine, nullptr)
{
    m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    m_view.setColor(Qt::transparent);
    m_view.setTitle(QStringLiteral("Brimlight"));
    m_view.setResizeMode(QQuickView::SizeRootObjectToView);
    m_surface = makeSurface(m_view);
    connect(&m_view, &QQuickWindow::activeFocusItemChanged, this,
            [this] { m_surface->setWantsKeyboard(takesText(m_view.activeFocusItem())); });
}

NotchWindow::~NotchWindow() = default;

void NotchWindow::host(NotchController &controller)
{
    m_view.setInitialProperties({{QStringLiteral("controller"), QVariant::fromValue(&controller)}});
    m_view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Notch/NotchRoot.qml")));
}

} // namespace brimlight
