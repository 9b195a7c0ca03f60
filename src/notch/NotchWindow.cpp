#include "notch/NotchWindow.h"

#include "notch/NotchController.h"
#include "notch/NotchScene.h"
#include "theme/InputModality.h"
#include "theme/Motion.h"

#include <QQuickItem>

#include <algorithm>

namespace brimlight {
namespace {

bool takesText(const QQuickItem &item)
{
    return item.flags().testFlag(QQuickItem::ItemAcceptsInputMethod);
}

/// Inside of something that keys belong to as long as it is open: a menu, the gallery.
bool isInKeyboardOwner(const QQuickItem *item)
{
    for (; item; item = item->parentItem()) {
        if (item->property("takesKeyboard").toBool())
            return true;
    }
    return false;
}

bool takesKeyboard(const QQuickItem *item)
{
    return item && (takesText(*item) || item->activeFocusOnTab() || isInKeyboardOwner(item));
}

/// Scrolls whatever the item is in until it shows with the mark around it.
void reveal(const QQuickItem &item)
{
    constexpr double mark = 6;
    for (QQuickItem *around = item.parentItem(); around; around = around->parentItem()) {
        auto *content = around->property("contentItem").value<QQuickItem *>();
        const QVariant contentY = around->property("contentY");
        if (!content || !contentY.isValid())
            continue;
        const QRectF seen = item.mapRectToItem(content, {0, -mark, item.width(), item.height() + 2 * mark});
        const double y = std::max(contentY.toDouble(), seen.bottom() - around->height());
        const double most = around->property("contentHeight").toDouble() - around->height();
        around->setProperty("contentY", std::clamp(std::min(y, seen.top()), 0.0, std::max(0.0, most)));
    }
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
    m_surface->setScrollable([this](Point position) {
        return m_scrollable.listenAt({position.x, position.y});
    });
    connect(&m_view, &QQuickWindow::activeFocusItemChanged, this, &NotchWindow::followFocus);
    // When somebody else has taken the keyboard, the control is left, so that the next click on a text field
    // asks for it again.
    connect(&m_view, &QWindow::activeChanged, this, [this] {
        if (!m_view.isActive())
            leaveControl();
    });
}

NotchWindow::~NotchWindow() = default;

void NotchWindow::host(NotchScene &scene, NotchController &controller)
{
    m_translator = std::make_unique<UiTranslator>(*scene.appSettings());
    connect(scene.appSettings(), &AppSettings::languageChanged, &m_engine, &QQmlEngine::retranslate);
    connect(scene.viewModel(), &NotchViewModel::geometryChanged, this,
            [this, &screen = *scene.viewModel()] { followHousing(screen.hasNotch()); });
    scene.motion().installOn(m_engine);
    m_view.setInitialProperties({{QStringLiteral("scene"), QVariant::fromValue(&scene)},
                                 {QStringLiteral("controller"), QVariant::fromValue(&controller)}});
    m_view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Notch/NotchRoot.qml")));
    const int modality = qmlTypeId("Brimlight.Theme", 1, 0, "InputModality");
    m_engine.singletonInstance<InputModality *>(modality)->watch(m_view);
}

void NotchWindow::followHousing(bool hasNotch)
{
    const Housing housing = hasNotch ? Housing::present : Housing::absent;
    if (!m_translator || housing == m_translator->housing())
        return;
    m_translator->setHousing(housing);
    m_engine.retranslate();
}

void NotchWindow::unhost()
{
    m_view.setSource({});
    m_translator.reset();
}

void NotchWindow::followFocus()
{
    const QQuickItem *item = m_view.activeFocusItem();
    if (item)
        reveal(*item);
    m_surface->setWantsKeyboard(takesKeyboard(item));
}

void NotchWindow::leaveControl()
{
    QQuickItem *item = m_view.activeFocusItem();
    if (item && (takesText(*item) || (item->activeFocusOnTab() && !isInKeyboardOwner(item))))
        item->setFocus(false);
}

} // namespace brimlight
