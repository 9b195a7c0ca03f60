pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A quiet line that gives way where there is no room.
Text {
    required property theme colors

    color: colors.textSecondary
    elide: Text.ElideRight
    fontSizeMode: Text.HorizontalFit
    minimumPixelSize: 8
    font.family: Fonts.rounded
    font.pixelSize: 11
    font.weight: Font.Medium
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
