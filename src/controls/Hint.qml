pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// A few quiet lines that explain something.
Label {
    color: colors.textSecondary
    wrapMode: Text.Wrap
    elide: Text.ElideNone
    font: Fonts.note
    lineHeight: 1.15
}
