pragma ComponentBehavior: Bound

import QtQuick
import Brimlight.Theme

// What the things below are called.
Label {
    font: Fonts.bold(Fonts.body)
    Accessible.role: Accessible.Heading
}
