#pragma once

#include "Core/Sampling/ProcSample.h"

#include <QList>

#include <functional>

class AppModel;
class QWidget;

/// The question before processes are ended that no press on a row of their own named alone: several together,
/// one that more depends on, or one that was chosen outside the window.
namespace EndDialog {

/// Returns whether the end of these has to be asked about.
bool isNeeded(const AppModel& model, const QList<ProcSample>& processes);

/// Asks whether to end them, and lists them with what goes with each. The dialog is modal for `parent`, which
/// `model` outlives. `end` is called with the answer.
void ask(QWidget* parent, const AppModel& model, const QList<ProcSample>& processes, bool force,
         const std::function<void(const QList<ProcSample>&)>& end);

} // namespace EndDialog
