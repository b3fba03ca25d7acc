#pragma once

#include "app/arranged_tables.h"
#include "app/option_record.h"
#include "app/product.h"

namespace swiftroll {

/// The tabs of the main window by number; the first six have the numbers of their tables.
enum class Tab { In, Out, FamilyXref, Xref, Family, Kinship, FormatOptions, LinkOptions, Options };

/// The whole run: the tables, the options, the status bar, the error trail and the values of the run. There
/// is one; the main window derives from it and adds the commands. What a module below works with are its
/// bases.
class Application : public Product, public ArrangedTables, public OptionRecord, public Feedback {
  public:
    /// `formats` are those that the Relevé-vif can be written in.
    Application(const Ports& applicationPorts, std::span<const FormatOption> formats);
    virtual ~Application() = default;

    Ports ports;

    /// Time at which the settings were restored, in the short form.
    Text sRunStart;
    Text sUserAppData;
    Text sUserMyDocuments;
    Text sHelpFile;

    bool bStarting = false;
    bool bFormLoading = false;
    bool bExiting = false;
    /// The program is to end: nothing more runs.
    bool bEnded = false;
    /// Whether the families of the present file were processed.
    bool bFamiliesRead = false;
    /// Whether the years of the present file were read with their calendars.
    bool bCalendarsRead = false;
    bool bDialogCancelled = false;
    int iOutFormat = 0;
    Tab SSTab1 = Tab::In;
    /// Brings a tab to the front; the window gives the focus to what it is for.
    virtual void ShowTab(Tab tab) { SSTab1 = tab; }
    /// The table that a tab is for, nullptr for one of options.
    Table* TableOf(Tab tab);
    /// The table that last had the focus.
    Table* lvwActiveListView = nullptr;

    /// Refreshes the position tables.
    void InitIndexes() { ArrangedTables::InitIndexes(*this); }
    /// `folder` and `name` with the platform's separator between them.
    Text PathOf(TextView folder, TextView name) const;
};

}  // namespace swiftroll
