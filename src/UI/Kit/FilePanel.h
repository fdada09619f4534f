#pragma once

#include "Platform/Desktop/FileChooser.h"

#include <memory>

/// Lets a person choose a folder or the name of a new file: in the desktop's own dialog, and in the toolkit's
/// where there is none.
namespace FilePanel {

/// Takes the desktop's dialog; null for the toolkit's alone, as before the first call.
void use(std::shared_ptr<FileChooser> desktops);

/// Asks above the window of `over`, and calls `chosen` with a path. It is not called when the person chose
/// none, and not after `over` has gone. Does nothing while `over` is asked already.
void open(QWidget* over, const FileChoice& choice, std::function<void(const QString& path)> chosen);

} // namespace FilePanel
