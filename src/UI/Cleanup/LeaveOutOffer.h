#pragma once

#include <QStringList>

class Preferences;
class QWidget;

/// Offers to leave out for good what a user has left out of two cleans.
namespace LeaveOutOffer {

/// Notes what was left out of a clean. Asks about what was left out before too, unless it is excluded.
void follow(QWidget* parent, Preferences& preferences, const QStringList& leftOut);

} // namespace LeaveOutOffer
