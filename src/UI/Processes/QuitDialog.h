#pragma once

class AppModel;
class QWidget;
struct ProcSample;

/// The question before one process is asked to end, for what was chosen outside the window.
namespace QuitDialog {

/// The dialog is modal for `parent`, which `model` outlives.
void ask(QWidget* parent, AppModel& model, const ProcSample& process);

} // namespace QuitDialog
