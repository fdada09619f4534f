#pragma once

/// What screen readers are told in place of Qt's own answers: a button that is toggled acts as when it is
/// clicked, a picker has its label, a stepper its value, a table is one, a pop-up window is in the tree, and
/// descriptions are plain text.
namespace Accessibility {

void install();

} // namespace Accessibility
