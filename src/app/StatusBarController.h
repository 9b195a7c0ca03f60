#pragma once

#include "platform/StatusItem.h"

#include <functional>

namespace brimlight {

class LoginItemService;
class NotchController;
class PanelMenu;
class UpdateService;

/// The status item with its menu: what reaches the panel from anywhere. It pins what it opens, because the
/// pointer is then away from the panel. The same menu opens inside of the panel, since not every desktop
/// shows status items.
class StatusBarController
{
public:
    /// `terminate` ends the program. Everything handed over must outlive the item.
    StatusBarController(NotchController &controller, PanelMenu &panelMenu, LoginItemService &loginItem,
                        UpdateService &updater, StatusItem &item, std::function<void()> terminate);

private:
    std::vector<StatusMenuEntry> menu();
    void menuWillOpen();
    void openNotch();
    void openSettings();
    void toggleLogin();
    void checkForUpdates();

    StatusItem &m_item;
    PanelMenu &m_panelMenu;
    NotchController &m_controller;
    LoginItemService &m_loginItem;
    UpdateService &m_updater;
    std::function<void()> m_quit;
};

/// The symbol as a picture for panels of any colour.
StatusPicture statusPicture(const QString &symbol, int side);

} // namespace brimlight
