#include "shell/read_notice.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <vector>

#include "app/french_count.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {
namespace {

using modReadGedcom::DateKind;
using modReadGedcom::DateKindWords;
using modReadGedcom::ReadFindings;

/// "a, b et c".
Text Enumerated(const std::vector<Text>& items) {
    Text text;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (i > 0) text += i + 1 == items.size() ? " et " : ", ";
        text += items[i];
    }
    return text;
}

Text EndingSentence(const ReadFindings& findings) {
    if (findings.endingLine == 0) return {};
    return Concat({"La lecture s'est arrêtée à la ligne "_t, FrenchCount(findings.endingLine),
                   ", dont le niveau a plus d'un chiffre : la suite du fichier n'a pas été lue."_t});
}

TextView DatesVerb(std::int64_t count, std::int32_t misreadYears) {
    if (misreadYears == 0) return ForCount(count, " n'a pas été lue."_t, " n'ont pas été lues."_t);
    if (misreadYears == count) return ForCount(count, " a été mal lue."_t, " ont été mal lues."_t);
    return " n'ont pas été lues, ou l'ont été mal."_t;
}

/// Names the kinds of the dates, the most frequent first.
Text DatesSentence(const ReadFindings& findings) {
    std::vector<std::size_t> kinds;
    for (std::size_t i = 0; i < findings.dates.size(); ++i) {
        if (findings.dates[i] > 0) kinds.push_back(i);
    }
    if (kinds.empty()) return {};
    std::ranges::stable_sort(kinds, std::greater{}, [&](std::size_t kind) { return findings.dates[kind]; });
    std::vector<Text> items;
    for (const std::size_t kind : kinds) {
        const std::int32_t count = findings.dates[kind];
        const TextView dates = items.empty() ? ForCount(count, " date "_t, " dates "_t) : " "_t;
        items.push_back(Concat({FrenchCount(count), dates, DateKindWords(static_cast<DateKind>(kind))}));
    }
    const auto all = std::accumulate(findings.dates.begin(), findings.dates.end(), std::int64_t{0});
    return Concat({Enumerated(items), DatesVerb(all, findings.misreadYears)});
}

Text EventsSentence(const ReadFindings& findings) {
    std::vector<Text> items;
    if (findings.births > 0) {
        items.push_back(Concat(
            {FrenchCount(findings.births), ForCount(findings.births, " baptême qui complète une naissance"_t,
                                                    " baptêmes qui complètent une naissance"_t)}));
    }
    if (findings.deaths > 0) {
        items.push_back(Concat(
            {FrenchCount(findings.deaths), ForCount(findings.deaths, " inhumation qui complète un décès"_t,
                                                    " inhumations qui complètent un décès"_t)}));
    }
    if (items.empty()) return {};
    const std::int64_t all = std::int64_t{findings.births} + findings.deaths;
    const TextView verb = findings.births > 0
                              ? ForCount(all, " n'a pas été lu."_t, " n'ont pas été lus."_t)
                              : ForCount(all, " n'a pas été lue."_t, " n'ont pas été lues."_t);
    return Concat({Enumerated(items), verb});
}

}  // namespace

Notice ReadNotice(const ReadFindings& findings, const ReadAgain& readAgain) {
    Notice notice;
    const auto tell = [&notice](TextView sentence) {
        if (!sentence.empty() && !notice.text.empty()) notice.text += ' ';
        notice.text += sentence;
        return !sentence.empty();
    };
    tell(EndingSentence(findings));
    if (tell(DatesSentence(findings)))
        notice.buttons.push_back({Text("Relire avec ces dates"_t), readAgain.withCalendars});
    if (tell(EventsSentence(findings)))
        notice.buttons.push_back({Text("Relire avec ces événements"_t), readAgain.withStandIns});
    return notice;
}

}  // namespace swiftroll
