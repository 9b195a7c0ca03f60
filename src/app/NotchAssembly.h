#pragma once

#include "notch/NotchController.h"
#include "notch/NotchScene.h"

namespace brimlight {

class Stores;

/// The panel over the stores: what decides about it and what it shows.
struct NotchAssembly
{
    NotchAssembly(Stores &stores, OverlaySurface &surface);

    NotchController controller;
    NotchScene scene;
};

} // namespace brimlight
