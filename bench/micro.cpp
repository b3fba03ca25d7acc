// Micro-benchmarks of what dominates a read and a list: splitting lines, adding and finding rows, sorting,
// folding texts, making keys.
#include <benchmark/benchmark.h>

#include "app/positions.h"
#include "gedcom/line_scanner.h"
#include "list/sort_keys.h"
#include "quiet_main.h"
#include "tables/columns.h"
#include "tables/schema.h"
#include "text/fold.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll {
namespace {

/// A file of one record said over and over.
class RepeatedFile : public File {
  public:
    explicit RepeatedFile(std::size_t records) : left_(records) {}
    std::size_t Read(char* buffer, std::size_t size) override {
        std::size_t written = 0;
        for (; left_ > 0 && written + kRecord.size() <= size; --left_, written += kRecord.size()) {
            kRecord.copy(buffer + written, kRecord.size());
        }
        return written;
    }
    void Write(TextView) override {}
    std::int64_t Length() override { return 0; }
    void Close() override {}

    static constexpr TextView kRecord =
        "0 @I123456@ INDI\r\n1 NAME Jean Baptiste/Lefèvre/\r\n1 SEX M\r\n1 BIRT\r\n2 DATE 12 JAN 1804\r\n"
        "2 PLAC Saint-Malo, Ille-et-Vilaine, Bretagne, France\r\n1 FAMC @F4321@\r\n"_t;

  private:
    std::size_t left_;
};

void ScanLines(benchmark::State& state) {
    constexpr std::size_t kRecords = 10000;
    for (auto _ : state) {
        modReadGedcom::LineScanner scanner(std::make_unique<RepeatedFile>(kRecords));
        std::size_t bytes = 0;
        while (scanner.Next()) bytes += scanner.Line().size();
        benchmark::DoNotOptimize(bytes);
    }
    state.SetBytesProcessed(state.iterations() *
                            static_cast<std::int64_t>(kRecords * RepeatedFile::kRecord.size()));
}
BENCHMARK(ScanLines);

Text IdOf(std::int64_t number) { return "@I" + Decimal(number * 7919 % 1000003) + "@"; }

void Fill(Table& table, std::int64_t rows) {
    for (std::int64_t i = 1; i <= rows; ++i) {
        const Text id = IdOf(i);
        table.Add(std::nullopt, TextView(id), TextView(id));
    }
}

void Add(benchmark::State& state) {
    for (auto _ : state) {
        TableSet tables;
        Fill(tables.lvwIn, state.range(0));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(Add)->Arg(1000)->Arg(100000);

void ItemByKey(benchmark::State& state) {
    TableSet tables;
    Fill(tables.lvwIn, state.range(0));
    std::int64_t i = 0;
    for (auto _ : state) {
        i = i % state.range(0) + 1;
        benchmark::DoNotOptimize(tables.lvwIn.Item(TextView(IdOf(i))).Text());
    }
}
BENCHMARK(ItemByKey)->Arg(1000)->Arg(100000);

/// Sorts by a column, up and down in turn.
void SortInTurn(benchmark::State& state, Table& table, ColumnId column) {
    std::int16_t order = 0;
    for (auto _ : state) {
        order = static_cast<std::int16_t>(1 - order);
        table.SortBy(column, order);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void SortByIdentifier(benchmark::State& state) {
    TableSet tables;
    Fill(tables.lvwIn, state.range(0));
    SortInTurn(state, tables.lvwIn, In::ID);
}
BENCHMARK(SortByIdentifier)->Arg(1000)->Arg(100000);

void SortByFirstName(benchmark::State& state) {
    TableSet tables;
    Fill(tables.lvwIn, state.range(0));
    for (std::int32_t i = 1; i <= tables.lvwIn.Count(); ++i) {
        tables.lvwIn.Item(i).SetCell(In::FirstName, TextView("Jean " + Decimal(i * 31 % 977)));
    }
    SortInTurn(state, tables.lvwIn, In::FirstName);
}
BENCHMARK(SortByFirstName)->Arg(1000)->Arg(100000);

void KeepAlphaNum(benchmark::State& state) {
    constexpr TextView kPlace = "Saint-Brieuc, Côtes-d'Armor, Bretagne, France"_t;
    Text form;
    for (auto _ : state) {
        form.clear();
        AppendComparisonForm(form, kPlace);
        benchmark::DoNotOptimize(form.data());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kPlace.size()));
}
BENCHMARK(KeepAlphaNum);

void MakeSortKeyIn(benchmark::State& state) {
    bench::QuietMain quiet;
    frmMain& main = quiet.main;
    main.lvwOut.MoveColumn(Out::Place, 3);  // the place before the count
    main.InitIndexes();
    Row row = main.lvwIn.Add(std::nullopt, TextView("@I1@"), TextView("@I1@"));
    row.SetCell(In::LastName, "Lefèvre"_t);
    row.SetCell(In::Place, "Saint-Malo, Ille-et-Vilaine, Bretagne, France"_t);
    for (auto _ : state) benchmark::DoNotOptimize(modCalcOut::MakeSortKeyIn(main.positions, row));
}
BENCHMARK(MakeSortKeyIn);

}  // namespace
}  // namespace swiftroll
