pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A line of text that screen readers read. One that another control speaks for is a plain `Text`.
Text {
    required property theme colors

    color: colors.textPrimary
    font: Fonts.label
    textFormat: Text.PlainText
    elide: Text.ElideRight
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
