#pragma once

#include "app/application.h"

namespace swiftroll {

/// The window of all blood relatives of somebody, without a screen: the table `lvwRelatives`, up to a degree
/// that the user can change.
class frmRelatives : public Window {
  public:
    explicit frmRelatives(Application& app);

    /// The civil degree up to which the table goes.
    TextBox txtDegree;
    /// Fills the table anew; copies it as lines of text; writes it as a page.
    Command cmdList, cmdCopy, cmdHtml, cmdClose;
    /// Of whom the relatives are, and how many there are.
    Label lblPerson;

    /// Shows the relatives of an individual. @throws Failure KeyNotFound
    void Open(TextView sIndi);

  private:
    void FillTable();
    void cmdCopy_Click();
    void cmdHtml_Click();

    Application& app_;
    Text sIndi_;
};

}  // namespace swiftroll
