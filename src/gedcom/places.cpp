#include "gedcom/places.h"

#include <boost/unordered/unordered_flat_map.hpp>

#include "gedcom/dates.h"
#include "tables/columns.h"
#include "text/edit.h"
#include "text/numbers.h"

namespace swiftroll::modReadGedcom {
namespace {

constexpr int kMostParts = 20;
constexpr int kTrimPasses = 20;
// A place whose parts hold markers can grow without end; no honest one grows as much as this.
constexpr std::size_t kMostGrowth = 64;
constexpr std::size_t kGrowthAllowed = std::size_t{1} << 20;

Text ReplaceMarker(Text text, TextView marker, TextView by) {
    return text.find(marker) == Text::npos ? std::move(text) : ReplaceAll(text, marker, by);
}

}  // namespace

TextView CleanInPlace(TextView sPlace) { return sPlace.substr(0, sPlace.find_last_not_of(" ,;") + 1); }

PlaceFormatter::PlaceFormatter(const OptionRecord& options)
    : format_(options.txtPlaceFormat.Get()),
      separator_(options.txtPlaceSepar.Get()),
      trim_(options.chkTrimSepar.Checked()) {
    for (const auto& item : options.lbOuputPlacesOrder.Items()) order_.push_back(item.value - 1);
}

Text PlaceFormatter::Take1Place(TextView sPlace) const {
    const std::vector<TextView> parts = Split(sPlace, separator_);
    Text sOut = format_;
    // One after the other, so that a marker in the text of a part is replaced in its turn.
    for (int n = 1; n <= kMostParts && sOut.find('%') != Text::npos; ++n) {
        const auto part = static_cast<std::size_t>(n - 1);
        sOut = ReplaceMarker(std::move(sOut), "%" + Decimal(n),
                             part < parts.size() ? Trim(parts[part]) : TextView());
        if (sOut.size() > kGrowthAllowed + kMostGrowth * (format_.size() + sPlace.size())) {
            throw Failure(FailureKind::OutOfMemory);
        }
    }
    sOut = ReplaceMarker(std::move(sOut), "%0", sPlace);
    sOut = ReplaceMarker(std::move(sOut), "%%", "%");
    for (int pass = 0; trim_ && pass < kTrimPasses; ++pass) {
        sOut.resize(TrimRight(sOut).size());
        if (separator_.empty() || !sOut.ends_with(separator_)) break;
        sOut.resize(sOut.size() - separator_.size());
    }
    return sOut;
}

int PlaceFormatter::PreferredPlace(const std::array<bool, 3>& isEmpty) const {
    for (const int place : order_) {
        if (!isEmpty[static_cast<std::size_t>(place)]) return place;
    }
    return -1;
}

void SetInDates(Application& app) {
    app.trail.Guard(
        "SetInDates",
        [&] {
            ++app.lInDatesMade;
            const PlaceFormatter formatter(app);
            TextStore& store = app.lvwIn.Store();
            // Places come again and again; each is formatted once.
            boost::unordered_flat_map<TextRef, TextRef> formatted;
            const auto takePlace = [&](const Row& row) {
                const std::array<TextRef, 3> places = {row.Ref(In::BirthPlace), row.Ref(In::DeathPlace),
                                                       row.Ref(In::MarrPlace)};
                const int preferred =
                    formatter.PreferredPlace({places[0].IsEmpty(), places[1].IsEmpty(), places[2].IsEmpty()});
                const TextRef place = preferred < 0 ? TextRef() : places[static_cast<std::size_t>(preferred)];
                const auto [known, isNew] = formatted.try_emplace(place);
                if (isNew) known->second = store.Intern(formatter.Take1Place(store.Get(place)));
                return known->second;
            };
            using EventColumns = std::array<In::Columns, 3>;
            constexpr EventColumns kMin = {In::BirthMin, In::DeathMin, In::MarrMin};
            constexpr EventColumns kMax = {In::BirthMax, In::DeathMax, In::MarrMax};
            const auto order = app.bCalendarsRead ? YearOrder::AsNumbers : YearOrder::AsTexts;
            const auto take = [order](const Row& row, const EventColumns& columns,
                                      std::size_t (*choose)(const EventYears&, YearOrder)) {
                const EventYears years = {row.Cell(columns[0]), row.Cell(columns[1]), row.Cell(columns[2])};
                return row.Ref(columns[choose(years, order)]);
            };
            const Pause pause = [&app] { app.ports.status.StatusChanged(); };
            for (std::int32_t i = 1; i <= app.lvwIn.Count(); ++i) {
                PauseAt(static_cast<std::size_t>(i), pause);
                Row row = app.lvwIn.Item(i);
                row.SetCell(In::DateMin, take(row, kMin, TakeDateMin));
                row.SetCell(In::DateMax, take(row, kMax, TakeDateMax));
                row.SetCell(In::Place, takePlace(row));
                SetMaxLen(row, app.lMaxLenIn);
            }
        },
        [] { return Text(); });
}

}  // namespace swiftroll::modReadGedcom
