#pragma once

#include "app/option_record.h"
#include "app/positions.h"
#include "app/status.h"
#include "app/trail.h"

namespace swiftroll {

/// Width of the widest text of each column, for export in padded columns.
struct WidthTables {
    Widths lMaxLenIn, lMaxLenOut, lMaxLenXref, lMaxLenFamily, lMaxLenFamilyXref, lMaxLenKinship;
};

/// Sets a flag for as long as it lives, and then puts it back: operations that set the same flag nest, and
/// failures leave them.
class ScopedFlag {
  public:
    explicit ScopedFlag(bool& flag) : flag_(flag), previous_(flag) { flag_ = true; }
    ~ScopedFlag() { flag_ = previous_; }
    ScopedFlag(const ScopedFlag&) = delete;
    ScopedFlag& operator=(const ScopedFlag&) = delete;

  private:
    bool& flag_;
    bool previous_;
};

/// The tabs of the main window by number; the first six have the numbers of their tables.
enum class Tab { In, Out, FamilyXref, Xref, Family, Kinship, FormatOptions, LinkOptions, Options };

/// What every module works with: the tables, the options, the status bar, the error trail and the values of
/// the run. There is one for the whole run; the main window derives from it and adds the commands.
class Application : public TableSet, public OptionRecord, public StatusBar, public WidthTables {
  public:
    /// `formats` are those that the Relevé-vif can be written in.
    Application(const Ports& applicationPorts, std::span<const FormatOption> formats);
    virtual ~Application() = default;

    Ports ports;
    Trail trail;
    Positions positions;

    const Text sProduct{"SwiftRoll"};
    const Text sVersion{SWIFTROLL_VERSION};
    /// The maker's site, without a closing "/"; what stands there by default is no site.
    Text sWebAddress{SWIFTROLL_WEB};
    const Text sMailAddress{SWIFTROLL_MAIL};
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
    /// The abort request: long loops leave at their next test.
    bool bAbort = false;
    /// Whether the families of the present file were processed.
    bool bFamiliesRead = false;
    bool bDialogCancelled = false;
    int iOutFormat = 0;
    /// Whether the wait cursor is on, and whether the tables are not repainted.
    bool bWaitCursor = false;
    bool bTablesLocked = false;
    Tab SSTab1 = Tab::In;
    /// Brings a tab to the front; the window gives the focus to what it is for.
    virtual void ShowTab(Tab tab) { SSTab1 = tab; }
    /// The table that last had the focus.
    Table* lvwActiveListView = nullptr;

    /// Whether the program was built for a site that can be asked.
    bool HasWebSite() const { return !sWebAddress.empty() && sWebAddress != SWIFTROLL_NO_WEB; }
    /// Caption of the main window, which begins the title of every box.
    Text MainCaption() const;
    /// Shows a box titled with the main caption and `suffix`.
    BoxAnswer Box(TextView suffix, TextView text, BoxButtons buttons = BoxButtons::Ok,
                  BoxIcon icon = BoxIcon::None, BoxTopic topic = BoxTopic::Message,
                  std::optional<BoxAnswer> preset = {});
    /// Refreshes the position tables.
    void InitIndexes();
    /// `folder` and `name` with the platform's separator between them.
    Text PathOf(TextView folder, TextView name) const;
    /// Asks the running operation to stop, as the Escape key does.
    void RequestAbort();
};

}  // namespace swiftroll
