#pragma once

namespace brimlight::BrimlightApp {

/// The process from `main` on. Returns its exit status: 0, or 1 when no display can be reached.
int run(int argc, char **argv);

} // namespace brimlight::BrimlightApp
