pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A quiet line that gives way where there is no room.
Label {
    color: colors.textSecondary
    fontSizeMode: Text.HorizontalFit
    minimumPixelSize: Fonts.tiny.pixelSize
    font: Fonts.medium(Fonts.label)
}
