#pragma once

#include "grid/GridViewState.h"
#include "notch/HUDType.h"
#include "notch/NotchGeometry.h"

#include <QtQmlIntegration>

#include <optional>

namespace brimlight {

class UserDefaults;

/// The one description of the state of the notch surface. It holds values and no rules: who may write each of
/// them stands beside it. Every assignment notifies, equal value or not.
class NotchViewModel : public brimlight::GridViewState
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")
    Q_PROPERTY(bool isExpanded READ isExpanded NOTIFY isExpandedChanged)
    Q_PROPERTY(bool isPinned READ isPinned WRITE setPinned NOTIFY isPinnedChanged)
    Q_PROPERTY(int currentPage READ currentPage WRITE setCurrentPage NOTIFY currentPageChanged)
    Q_PROPERTY(bool hasNotch READ hasNotch NOTIFY geometryChanged)
    Q_PROPERTY(double collapsedWidth READ collapsedWidth NOTIFY geometryChanged)
    Q_PROPERTY(double collapsedHeight READ collapsedHeight NOTIFY geometryChanged)
    Q_PROPERTY(bool showSettings READ showSettings WRITE setShowSettings NOTIFY showSettingsChanged)
    Q_PROPERTY(bool onboardingCompleted READ onboardingCompleted WRITE setOnboardingCompleted NOTIFY
                   onboardingCompletedChanged)

public:
    explicit NotchViewModel(UserDefaults &defaults, QObject *parent = nullptr);

    /// The panel shows its expanded content. Written by the controller's `setExpanded` only.
    bool isExpanded() const { return m_isExpanded; }
    void setExpanded(bool value);
    /// The panel stays open when the pointer leaves. Written by the controller and by the closing gallery.
    bool isPinned() const { return m_isPinned; }
    void setPinned(bool value);
    /// The grid page shown, zero-based. Written by the controller and the page controls.
    int currentPage() const { return m_currentPage; }
    void setCurrentPage(int value);
    /// The collapsed size on the current screen. Written by the controller when it places the panel.
    const NotchGeometry &geometry() const { return m_geometry; }
    void setGeometry(const NotchGeometry &value);
    bool hasNotch() const { return m_geometry.hasNotch; }
    double collapsedWidth() const { return m_geometry.collapsedWidth; }
    double collapsedHeight() const { return m_geometry.collapsedHeight; }
    /// The settings cover the grid. Written by header, status menu and settings panel.
    bool showSettings() const { return m_showSettings; }
    void setShowSettings(bool value);
    /// The heads-up display now showing. Written by the controller only.
    const std::optional<HUDType> &hudType() const { return m_hudType; }
    void setHudType(const std::optional<HUDType> &value);
    /// The first-run walk-through is finished. The one persisted field: rewritten at every assignment.
    bool onboardingCompleted() const { return m_onboardingCompleted; }
    void setOnboardingCompleted(bool value);

Q_SIGNALS:
    void isExpandedChanged();
    void isPinnedChanged();
    void currentPageChanged();
    void geometryChanged();
    void showSettingsChanged();
    void hudTypeChanged();
    void onboardingCompletedChanged();

private:
    UserDefaults &m_defaults;
    bool m_isExpanded = false;
    bool m_isPinned = false;
    int m_currentPage = 0;
    NotchGeometry m_geometry;
    bool m_showSettings = false;
    std::optional<HUDType> m_hudType;
    bool m_onboardingCompleted;
};

} // namespace brimlight
