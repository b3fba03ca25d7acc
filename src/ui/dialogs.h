#pragma once

#include "qt_ports.h"
#include "secondary_dialog.h"

namespace swiftroll::ui {

/// The dialogs beside the main window; each belongs to `owner`.
SecondaryDialog* BuildKinshipDialog(Presenter& presenter, QtDialogs& dialogs, QWidget* owner);
SecondaryDialog* BuildFindDialog(Presenter& presenter, QWidget* owner);
SecondaryDialog* BuildCheckDialog(Presenter& presenter, QWidget* owner);
SecondaryDialog* BuildUpdatesDialog(Presenter& presenter, QWidget* owner);
SecondaryDialog* BuildRelativesDialog(Presenter& presenter, QWidget* owner);
SecondaryDialog* BuildAboutDialog(Presenter& presenter, QWidget* owner);

}  // namespace swiftroll::ui
