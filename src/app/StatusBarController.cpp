#include "app/StatusBarController.h"

#include "core/LoginItemService.h"
#include "notch/NotchController.h"
#include "notch/PanelMenu.h"
#include "theme/SymbolImage.h"
#include "update/UpdateService.h"

#include <QtEndian>

namespace brimlight {
namespace {

/// Where "Launch at Login" stands.
constexpr int loginMenuItem = 4;

/// Between the panels that are dark and those that are light: three to one against either.
constexpr QRgb tint = qRgb(0x8a, 0x8a, 0x8a);

} // namespace

StatusBarController::StatusBarController(NotchController &controller, PanelMenu &panelMenu,
                                         LoginItemService &loginItem, UpdateService &updater,
                                         StatusItem &item, std::function<void()> terminate)
    : m_item(item)
    , m_panelMenu(panelMenu)
    , m_controller(controller)
    , m_loginItem(loginItem)
    , m_updater(updater)
    , m_quit(std::move(terminate))
{
    const QString symbol = QStringLiteral("rectangle.topthird.inset.filled");
    m_item.setImage({.symbol = symbol,
                     .accessibilityDescription = QStringLiteral("Brimlight"),
                     .draw = [symbol](int side) { return statusPicture(symbol, side); }});
    m_item.setAction([this] { openNotch(); });
    const auto willOpen = [this] { menuWillOpen(); };
    m_item.setMenu(menu(), willOpen);
    m_panelMenu.setMenu(menu(), willOpen);
}

/// In plain English in every language.
std::vector<StatusMenuEntry> StatusBarController::menu()
{
    return {
        {.title = QStringLiteral("Open Brimlight"), .action = [this] { openNotch(); }},
        {.title = QStringLiteral("Settings…"),
         .keyEquivalent = QStringLiteral(","),
         .action = [this] { openSettings(); }},
        {.title = QStringLiteral("Check for Updates…"), .action = [this] { checkForUpdates(); }},
        {},
        {.title = QStringLiteral("Launch at Login"),
         .isCheckable = true,
         .action = [this] { toggleLogin(); }},
        {},
        {.title = QStringLiteral("Quit Brimlight"), .keyEquivalent = QStringLiteral("q"), .action = m_quit},
    };
}

void StatusBarController::menuWillOpen()
{
    m_loginItem.refresh();
    m_item.setChecked(loginMenuItem, m_loginItem.isEnabled());
    m_panelMenu.setChecked(loginMenuItem, m_loginItem.isEnabled());
}

void StatusBarController::openNotch()
{
    m_controller.open();
}

void StatusBarController::openSettings()
{
    m_controller.openSettings();
}

void StatusBarController::toggleLogin()
{
    m_loginItem.setEnabled(!m_loginItem.isEnabled());
}

void StatusBarController::checkForUpdates()
{
    Q_EMIT m_updater.checkForUpdates();
}

StatusPicture statusPicture(const QString &symbol, int side)
{
    // The lines of symbols lie on whole pixels at multiples of 16 only; the rest is margin, as panels want
    // it.
    const int symbolSide = side < 32 ? 16 : 32;
    const QImage image =
        symbolImage(symbol, side, symbolSide, QColor(tint)).convertToFormat(QImage::Format_ARGB32);
    StatusPicture picture{.side = side, .argb = QByteArray(image.sizeInBytes(), Qt::Uninitialized)};
    qToBigEndian<quint32>(image.constBits(), image.sizeInBytes() / 4, picture.argb.data());
    return picture;
}

} // namespace brimlight
