#pragma once

/// Lets screen readers know the widgets that are painted by hand for what they are: the navigation
/// entries and the dashboard's cards are buttons that can be pressed, its circle is a progress bar;
/// a button with the property "expanded" tells of it.
/// To be called once, before the first of them is made.
void installAccessibleInterfaces();
