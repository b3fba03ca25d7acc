#pragma once

#include <array>
#include <deque>
#include <span>

#include "app/controls.h"

namespace swiftroll {

/// What the options show and hold of a format in which the Relevé-vif is written. The record knows no more of
/// formats than this, and takes them in the order in which they are chosen from.
struct FormatOption {
    Text caption;  // of its option button
    Text command;  // what the button of the command says
    /// Standard extensions of the list and of its model.
    Text outExtension, modelExtension;
    bool isFirstChoice = false;
};

/// The option record: every option of the main window under the name of its control, with its default. An
/// option is declared in option_record.cpp and nowhere else; settings, window and headless program find it by
/// walking the controls.
class OptionRecord : public Window {
  public:
    explicit OptionRecord(std::span<const FormatOption> formats);

    // Named parameter sets. Restoring one loads it, so they stand before the options that they hold: what
    // the user saw last wins.
    ComboBox cboCells;
    ComboBox cboColumns;
    ComboBox cboOutPlace;
    // Favourites of the six table tabs
    std::array<ComboBox, 6> cboFavorites;

    // Reading. Restoring the combo sets the box, so the box comes behind it.
    ComboBox cboLoad;
    CheckBox chkProcFamilies;
    CheckBox chkUpperNames;
    CheckBox chkInvertNames;

    // Files
    ComboBox cboGedIn;
    ComboBox cboGedOut;
    ComboBox cboSwiftOut;
    ComboBox cboFileModel;
    ComboBox cboKinship;
    Label lblOut;
    Label lblModel;

    // Places
    OrderedList lbOuputPlacesOrder;
    TextBox txtPlaceFormat;
    TextBox txtPlaceSepar;
    CheckBox chkTrimSepar;

    // Written list
    OptionGroup optTabSpace;
    CheckBox chkIncludeHeaders;
    TextBox txtINDEX;
    CheckBox chkGenerXSL;
    OptionGroup optOutExtension;
    ComboBox cboSaveSwift;
    // by the number of the format
    std::deque<TextBox> txtOutExtension;
    std::deque<TextBox> txtModelExtension;

    // Kinship drawings
    ComboBox cboDrawKinship;
    TextBox txtFont;
    Label lblFont;
    OptionGroup optFullName;
    CheckBox chkIndiID;
    CheckBox chkIndiBirthDate;
    CheckBox chkIndiBirthPlace;
    CheckBox chkIndiDeathDate;
    CheckBox chkIndiDeathPlace;
    CheckBox chkMarrID;
    CheckBox chkMarrDate;
    CheckBox chkMarrPlace;
    ColourButton cmdColorMale;
    ColourButton cmdColorFemale;
    ColourButton cmdColorUndefined;
    TextBox txtKinWidth;
    TextBox txtKinHeight;
    TextBox txtKinH;
    TextBox txtKinV;
    CheckBox txtKinshipLandscape;

    // Behaviour
    CheckBox chkTips;
    CheckBox chkCheckUpdates;
    CheckBox chkMaxLinks;
    TextBox txtMaxLinks;
    CheckBox chkMaxSpouses;
    TextBox txtMaxSpouses;
    CheckBox chkIgnoreCase;
    CheckBox chkDelAccents;
};

}  // namespace swiftroll
