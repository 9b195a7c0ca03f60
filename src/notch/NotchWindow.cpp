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
    &qml_register_types_Brimlight_Core, &qml_register_types_Brimlight_Theme,
    &qml_register_types_Brimlight_Grid, &qml_register_types_Brimlight_Notch};

bool takesText(const QQuickItem *item)
{
    return item && item->flags().testFlag(QQuickItem::ItemAcceptsInputMethod);
}

/// Text fields take the keyboard, and so do menus and the gallery while they are open: Escape must reach
/// them.
bool takesKeyboard(const QQuickItem *item)
{
    if (takesText(item))
        return true;
    for (; item; item = item->parentItem()) {
        if (item->property("takesKeyboard").toBool())
            return true;
    }
    return false;
}

} // namespace

NotchWindow::NotchWindow(const SurfaceFactory &makeSurface)
    : m_view(&m_engine, nullptr)
{
    m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    m_view.setColor(Qt::transparent);
    m_view.setTitle(QStringLiteral("Brimlight"));
    m_view.setResizeMode(QQuickView::SizeRootObjectToView);
    m_surface = makeSurface(m_view);
    connect(&m_view, &QQuickWindow::activeFocusItemChanged, this,
            [this] { m_surface->setWantsKeyboard(takesKeyboard(m_view.activeFocusItem())); });
    // When somebody else has taken the keyboard, the text field is left, so that the next click asks for it
    // again.
    connect(&m_view, &QWindow::activeChanged, this, [this] {
        if (!m_view.isActive())
            leaveTextField();
    });
}

NotchWindow::~NotchWindow() = default;

void NotchWindow::host(NotchController &controller)
{
    m_translator = std::make_unique<UiTranslator>(*controller.appSettings());
    connect(controller.appSettings(), &AppSettings::languageChanged, &m_engine, &QQmlEngine::retranslate);
    controller.motion().installOn(m_engine);
    m_view.setInitialProperties({{QStringLiteral("controller"), QVariant::fromValue(&controller)}});
    connect(controller.viewModel(), &NotchViewModel::isExpandedChanged, this, [this, &controller] {
        if (!controller.viewModel()->isExpanded())
            leaveTextField();
    });
    m_view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Notch/NotchRoot.qml")));
}

void NotchWindow::unhost()
{
    m_view.setSource({});
    m_translator.reset();
}

void NotchWindow::leaveTextField()
{
    if (QQuickItem *item = m_view.activeFocusItem(); takesText(item))
        item->setFocus(false);
}

} // namespace brimlight
