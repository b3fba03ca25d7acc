#include "kinship/kin_terms.h"

#include <algorithm>

#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"

namespace swiftroll::modKinship {
namespace {

using Words = KinTerm::Words;

/// A relation by blood. Where `furtherUp` or `furtherDown` is 1, the term goes on: each further generation
/// puts "arrière-" before it.
struct BloodTerm {
    int up, down;
    Words words;
    int furtherUp = 0, furtherDown = 0;
};
constexpr BloodTerm kBloodTerms[] = {
    {1, 0, {"père"_t, "mère"_t, "parent"}},
    {2, 0, {"grand-père"_t, "grand-mère"_t, "grand-parent"}, 1, 0},
    {0, 1, {"fils", "fille", "enfant"}},
    {0, 2, {"petit-fils", "petite-fille", "petit-enfant"}, 0, 1},
    {1, 1, {"frère"_t, "sœur"_t}},
    {2, 1, {"oncle", "tante"}},
    {3, 1, {"grand-oncle", "grand-tante"}, 1, 0},
    {1, 2, {"neveu", "nièce"_t}},
    {1, 3, {"petit-neveu", "petite-nièce"_t}, 0, 1},
    {2, 2, {"cousin germain", "cousine germaine"}},
    {3, 3, {"cousin issu de germain", "cousine issue de germain"}},
};
constexpr Words kHalfSibling = {"demi-frère"_t, "demi-sœur"_t};
constexpr Words kSpouse = {"époux"_t, "épouse"_t, "conjoint"};

/// Nobody counts more of them: beyond, the civil degree tells the generations.
constexpr int kMostPrefixes = 4;
constexpr TextView kPrefix = "arrière-"_t;

/// What relatives are called who have no term of their own, with their degree behind.
constexpr int kAny = -1;
struct DistantTerm {
    int up, down;
    Words words;
};
constexpr DistantTerm kDistantTerms[] = {
    {kAny, 0, {"ancêtre"_t, "ancêtre"_t, "ancêtre"_t}},
    {0, kAny, {"descendant", "descendante"}},
    {kAny, 1, {"oncle", "tante"}},
    {1, kAny, {"neveu", "nièce"_t}},
    {kAny, kAny, {"cousin", "cousine"}},
};

/// One word for two parts of a path, of which one is a spouse and the other this blood.
struct MarriageTerm {
    int up, down;
    bool spouseIsFirst;
    Words words;
};
constexpr MarriageTerm kMarriageTerms[] = {
    {1, 0, false, {"beau-père"_t, "belle-mère"_t, "beau-parent"}},
    {1, 0, true, {"beau-père"_t, "belle-mère"_t, "beau-parent"}},
    {1, 1, false, {"beau-frère"_t, "belle-sœur"_t}},
    {1, 1, true, {"beau-frère"_t, "belle-sœur"_t}},
    {0, 1, false, {"gendre", "bru"}},
    {0, 1, true, {"beau-fils", "belle-fille"}},
};

Text Repeated(TextView text, int times) {
    Text repeated;
    for (int i = 0; i < times; ++i) repeated += text;
    return repeated;
}

KinTerm TermOf(const BloodLine& line) {
    if (line.AreSiblings() && line.other == OtherParent::Different) return KinTerm(kHalfSibling);
    for (const BloodTerm& term : kBloodTerms) {
        const int further = term.furtherUp != 0 ? line.up - term.up : line.down - term.down;
        const int prefixes = further > 0 && further <= kMostPrefixes ? further : 0;
        if (line.up == term.up + prefixes * term.furtherUp &&
            line.down == term.down + prefixes * term.furtherDown) {
            return KinTerm(term.words, Repeated(kPrefix, prefixes));
        }
    }
    const auto isOf = [](int generations, int wanted) { return wanted == kAny || generations == wanted; };
    const auto* const distant = std::find_if(
        std::begin(kDistantTerms), std::end(kDistantTerms),
        [&](const DistantTerm& term) { return isOf(line.up, term.up) && isOf(line.down, term.down); });
    return KinTerm(distant->words, {}, Concat({" au ", Decimal(DegreesOf(line).civil), "e degré"_t}));
}

/// The word behind "de" and its article.
Text WithArticle(TextView word, Sex sex) {
    constexpr TextView kVowels = "aeiouéœ"_t;
    if (kVowels.find(word.front()) != TextView::npos) return Concat({"de l'", word});
    return Concat({sex == Sex::Female ? "de la " : "du ", word});
}

}  // namespace

Sex SexOf(TextView sSex) { return sSex == "M" ? Sex::Male : sSex == "F" ? Sex::Female : Sex::Unknown; }

Degrees DegreesOf(const BloodLine& line) { return {line.up + line.down, std::max(line.up, line.down)}; }

KinTerm::KinTerm(const Words& words, TextView prefix, TextView suffix) {
    const auto fill = [&](Sex sex, TextView word) {
        const Text whole = Concat({prefix, word});
        FormOf(sex) = {whole, WithArticle(whole, sex)};
    };
    fill(Sex::Male, words.male);
    fill(Sex::Female, words.female);
    if (words.neutral.empty()) {
        const Form &male = FormOf(Sex::Male), &female = FormOf(Sex::Female);
        FormOf(Sex::Unknown) = {Concat({male.name, " ou ", female.name}),
                                Concat({male.of, " ou ", female.of})};
    } else {
        fill(Sex::Unknown, words.neutral);
    }
    for (Form& form : forms_) {
        form.name += suffix;
        form.of = Concat({" ", form.of, suffix});
    }
}

KinTerms::KinTerms() : spouse_(kSpouse) {
    for (const MarriageTerm& term : kMarriageTerms) marriages_.emplace_back(term.words);
}

const KinTerm& KinTerms::Of(const KinPart& part) {
    if (!part) return spouse_;
    const Line line{part->up, part->down, part->other == OtherParent::Different};
    const auto found = blood_.find(line);
    return found != blood_.end() ? found->second : blood_.emplace(line, TermOf(*part)).first->second;
}

const KinTerm* KinTerms::OfMarriage(const KinPart& first, const KinPart& second) const {
    if (first.has_value() == second.has_value()) return nullptr;
    const BloodLine& blood = first ? *first : *second;
    // Whom a half-sibling has married is told by the long name.
    if (blood.AreSiblings() && blood.other == OtherParent::Different) return nullptr;
    for (std::size_t i = 0; i < std::size(kMarriageTerms); ++i) {
        const MarriageTerm& term = kMarriageTerms[i];
        if (term.up == blood.up && term.down == blood.down && term.spouseIsFirst == !first) {
            return &marriages_[i];
        }
    }
    return nullptr;
}

}  // namespace swiftroll::modKinship
