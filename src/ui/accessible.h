#pragma once

/// Gives the widgets that are painted by hand their roles for screen readers. Navigation entries
/// and dashboard cards become buttons, and the dashboard circle becomes a progress bar. A button
/// with the property "expanded" reports that state.
/// Call it once, before the first of these widgets exists.
void installAccessibleInterfaces();
