#pragma once

#include "gedcom/reader.h"
#include "shell/path_drawing.h"

namespace swiftroll {

/// The commands that read a file and compute from it.
class Reading {
  public:
    /// What a read gives decides which of `commands` can be used.
    Reading(Application& app, MainCommands& commands, modReadGedcom::Reader& reader, PathDrawing& drawing);

    /// Lets the first read put the columns of the Relevé-vif into the default order, if nobody ever chose
    /// one.
    void PlaceGroupsOfNewcomer() { placesGroups_ = true; }

  private:
    void cmdLoad_Click();
    void PlaceGroups();
    void ReadFile();
    /// Tells in the message bar how far the read came, and what it gave.
    void TellRead();
    /// Tells in the message bar what the options kept the read from; `readAgain` repeats it with one of them.
    void TellFindings(const std::function<void(CheckBox& option)>& readAgain);
    void cboLoad_Click();
    void chkProcFamilies_Click();
    void EnableFamilyCommands(bool enabled);
    void cmdCalcOutput_Click();

    Application& app_;
    MainCommands& commands_;
    modReadGedcom::Reader& reader_;
    PathDrawing& drawing_;
    bool placesGroups_ = false;
};

}  // namespace swiftroll
