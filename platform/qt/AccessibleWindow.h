#pragma once

namespace coregui {

/// Has the toolkit tell screen readers what the windows that we paint are: windows, dialogs, and parts of
/// them. Once is enough; more does nothing.
void DescribePaintedWindows();

}  // namespace coregui
