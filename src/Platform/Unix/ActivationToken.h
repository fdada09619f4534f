#pragma once

/// A Wayland launcher's token for taking the keyboard once, read by Qt when a window comes forward.
inline constexpr const char* activationTokenVariable = "XDG_ACTIVATION_TOKEN";
