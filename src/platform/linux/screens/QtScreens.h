#pragma once

#include "platform/Screens.h"
#include "platform/linux/screens/DisplayCutout.h"

#include <QObject>
#include <QScreen>

namespace brimlight {

/// A screen in Qt's coordinates (origin at the top left, y downwards) as the logic sees it. `primary` is the
/// frame of the primary screen, whose lower left corner is the origin.
Rect flipped(const QRectF &rect, const QRectF &primary);
/// The way back.
QRectF unflipped(const Rect &rect, const QRectF &primary);

/// Fills in the camera housing of `screen` if `panel` is the one it shows, which the size in pixels tells.
void applyCutout(Screen &screen, const DisplayPanelData &panel, double devicePixelRatio);

/// The screens of Qt, with the camera housing of the built-in one.
class QtScreens : public QObject, public Screens
{
public:
    explicit QtScreens(const std::optional<DisplayPanelData> &panel);

    std::vector<Screen> screens() const override;
    std::optional<Screen> mainScreen() const override;
    void observeChanges(std::function<void()> changed) override;

    /// To be called when the workspace has been switched, which Qt does not tell.
    void workspaceChanged();

private:
    void watch(QScreen *screen);
    void changed();
    Screen describe(const QScreen &screen) const;

    std::optional<DisplayPanelData> m_panel;
    std::function<void()> m_changed;
};

} // namespace brimlight
