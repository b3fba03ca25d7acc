// Measures the selection on a family file: selectionbench FILE.ged prints the seconds of each mode with few,
// half and all of the rows marked, adding and removing.
#include <chrono>
#include <cstdio>

#include "list/calc_output.h"
#include "quiet_main.h"
#include "tables/columns.h"

namespace {

using swiftroll::Table;

constexpr int kShares[] = {1, 50, 100};  // marked rows, in percent

class SelectionBench {
  public:
    void Read(const char* file) {
        app_.Read(file);
        swiftroll::modCalcOut::CalcOuptut(main_, main_,
                                          swiftroll::modPrivacy::Living(main_, main_, main_.ports.clock));
        main_.lvwIn.SortBy(swiftroll::In::ID, 0);
        std::printf("%s: %d people, %d groups, %d links\n", file, main_.lvwIn.Count(), main_.lvwOut.Count(),
                    main_.lvwXref.Count());
        std::printf("%-28s", "seconds");
        for (const int share : kShares) std::printf("  add %3d%% remove %3d%%", share, share);
        std::printf("\n");
    }

    void MeasureAll() {
        for (Table* table : {&main_.lvwIn, &main_.lvwXref, &main_.lvwFamily, &main_.lvwFamilyXref}) {
            for (const char* sMode : {"I", "P", "S", "C"})
                Measure(*table, table->Columns().front().Key, sMode);
        }
        Measure(main_.lvwFamily, "IDHusb", "S");
        Measure(main_.lvwFamily, "IDHusb", "C");
        for (const char* sMode : {"V=", "V<=", "V>="}) {
            for (const char* key : {"LastName", "FirstName", "Place", "BirthMin", "ID"}) {
                Measure(main_.lvwIn, key, sMode);
            }
            for (const char* key : {"LastName", "Place", "DateMin"}) Measure(main_.lvwOut, key, sMode);
            for (const char* key : {"IDIndi1", "Indi1"}) Measure(main_.lvwXref, key, sMode);
            Measure(main_.lvwFamily, "Fam", sMode);
        }
        std::printf("slowest: %.2f s\n", slowest_);
    }

  private:
    void Measure(Table& table, const swiftroll::Text& key, const char* sMode) {
        auto& engine = main_.selection;
        engine.context.SetClickedCell(main_, table, table.FindColumn(key)->Index);
        // Without the column that the mode needs, the command is not offered.
        const bool isOffered =
            sMode[0] == 'V' || (sMode[0] != 'I' && sMode[0] != 'P') || engine.context.iIndiCol;
        if (!isOffered) return;
        main_.lvwActiveListView = &table;
        std::printf("%-13s %-10s %-3s", table.Name().c_str(), key.c_str(), sMode);
        for (const int share : kShares) {
            for (const bool bSelect : {true, false}) {
                Mark(table, share);
                const auto start = std::chrono::steady_clock::now();
                engine.Add_Remove_Selection(bSelect, sMode);
                const double seconds =
                    std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
                std::printf("  %10.3f", seconds);
                slowest_ = std::max(slowest_, seconds);
            }
        }
        std::printf("\n");
    }

    /// Marks a share of the rows, spread evenly, and leaves lvwIn otherwise unmarked.
    void Mark(Table& table, int share) {
        for (Table* each : {&main_.lvwIn, &table}) {
            for (std::int32_t i = 1; i <= each->Count(); ++i) {
                swiftroll::Row row = each->Item(i);
                row.SetSelected(false);
                row.SetChecked(each == &table && i % 100 < share);
            }
        }
    }

    bench::QuietMain<> app_;
    swiftroll::frmMain& main_ = app_.main;
    double slowest_ = 0;
};

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::fputs("usage: selectionbench FILE.ged\n", stderr);
        return 2;
    }
    SelectionBench bench;
    bench.Read(arguments[1]);
    bench.MeasureAll();
    return 0;
}
