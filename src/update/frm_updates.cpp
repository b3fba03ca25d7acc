#include "update/frm_updates.h"

#include "text/edit.h"
#include "text/literal.h"
#include "text/numbers.h"
#include "update/comment_line.h"
#include "update/version_key.h"

namespace swiftroll {
namespace {

constexpr TextView kTitle = " - Updates.ini", kFile = "Updates.ini";
constexpr int kBlinks = 101, kBlinkMilliseconds = 50;
constexpr std::uint32_t kWhite = 0xFFFFFF, kBlack = 0, kRed = 0x0000FF;
/// Keys of a list end in two digits.
constexpr int kMostValues = 100;

/// The comparison key of a version of the list. What lies beyond all keys has the least one: it never counts
/// as newer, and does not keep the rest of the list from being read.
Text KeyOf(TextView version) {
    try {
        return AdjustVersion(version);
    } catch (const Failure& failure) {
        if (failure.Kind() != FailureKind::Overflow) throw;
        return {};
    }
}

/// Whether a browser is to open an address: the list comes from outside and may name anything.
bool IsWebAddress(TextView address) {
    const auto begins = [&](TextView scheme) {
        return SameButCase(address.substr(0, scheme.size()), scheme);
    };
    return begins("http://") || begins("https://");
}

Text FileNameOfAddress(TextView address) { return Text(address.substr(address.rfind('/') + 1)); }

}  // namespace

frmUpdates::frmUpdates(Application& app)
    : Window("frmUpdates"),
      lblDownloadBeta(*this, {"lblDownloadBeta"}),
      lblDownloadLastFull(*this, {"lblDownloadLastFull"}),
      lblDownloadLastUpd(*this, {"lblDownloadLastUpd"}),
      app_(app),
      ini_(app.ports.files, app.ports.folders.Separator()) {
    for (DownloadLabel* label : {&lblDownloadBeta, &lblDownloadLastFull, &lblDownloadLastUpd}) {
        label->Operation = [this, label] {
            if (!label->Tag.empty()) app_.ports.desktop.OpenAddress(label->Tag);
        };
    }
}

void frmUpdates::GetUpdates(bool bSilent) {
    const auto check = [&] {
        try {
            CheckVersions(bSilent);
        } catch (const std::exception&) {
            ShowImpossible({CurrentFailure().What()});
            Fire(OnFailed);
            throw;
        }
    };
    if (!bSilent) return app_.trail.Through("GetUpdates", check);
    app_.trail.GuardElse("GetUpdates", check, [&] { app_.trail.LogOnly(ini_.INIFile()); });
}

void frmUpdates::CheckVersions(bool bSilent) {
    const Text sLocal = app_.PathOf(app_.sUserAppData, kFile);
    isListShown_ = false;
    const auto warn = [&](TextView first) {
        constexpr TextView kSecond = "ou pas de connection Internet...";
        ShowImpossible({first, kSecond});
        Fire(OnFailed);
        app_.Box(kTitle, Concat({first, kLineEnd, kSecond}), BoxButtons::Ok, BoxIcon::Exclamation);
    };
    Caption = app_.MainCaption();
    if (!app_.HasWebSite()) {
        constexpr auto kNoSite = "Aucun site n'est défini pour les mises-à-jour."_t;
        ShowImpossible({kNoSite});
        return app_.pnlMessage.Set(Concat({kNoSite, " ", app_.pnlMessage.Get()}));
    }
    app_.pnlMessage.Set("Teste si une nouvelle version est disponible..."_t);
    if (!DownloadFile(Concat({app_.sWebAddress, "/", kFile}), sLocal)) {
        return warn("Fichier de màj non trouvé. C'est pas normal..."_t);
    }
    ini_.CreateIni(app_.sUserAppData, kFile);
    const std::vector<Text> asVers = GetKeyValues(Concat({"-", app_.sProduct}), "VERS");
    if (asVers.front().empty()) return warn("Pas de version trouvée, c'est pas normal..."_t);
    if (bSilent && KeyOf(ini_.GetFile(asVers.back(), "VERS")) <= AdjustVersion(app_.sVersion)) {
        app_.pnlMessage.Set("Vous avez la dernière version."_t);
        return;
    }
    Show();
    ShowVersions(asVers);
    const bool isNew = AdjustVersion(sBestVers) > AdjustVersion(app_.sVersion);
    Caption = Concat({app_.MainCaption(), isNew ? " - Une nouvelle version est disponible."_t
                                                : " - Vous avez la dernière version."_t});
    if (isNew) BlinkWindow(kBlinks, kBlinkMilliseconds);
    FillLabels();
    app_.pnlMessage.Set("");
}

void frmUpdates::ShowImpossible(std::initializer_list<TextView> lines) {
    if (!isListShown_) {
        tvwUpdates.Clear();
        AddRoot();
    }
    for (const TextView line : lines) {
        tvwUpdates.AddBelowFirst(line, {.foreColour = kRed, .bold = true});
    }
    for (DownloadLabel* label : {&lblDownloadBeta, &lblDownloadLastFull, &lblDownloadLastUpd}) {
        Fill(*label, {}, {}, {});
    }
    app_.pnlMessage.Set("Vérification impossible."_t);
}

bool frmUpdates::DownloadFile(TextView sUrl, TextView sLocal) {
    bool isDone = false;
    app_.trail.GuardElse(
        "DownloadFile",
        [&] {
            const ScopedFlag wait(bWaitCursor), canStop(app_.bCanStop);
            app_.ports.network.Download(sUrl, sLocal);  // an old copy serves when nothing comes
            isDone = true;
        },
        [&] {
            app_.Box(" - OpenURL", Concat({"Erreur d'accès au fichier de mises-à-jour"_t, kLineEnd,
                                           "Site : ", sUrl, kLineEnd, "Local : ", sLocal}));
        });
    return isDone;
}

std::vector<Text> frmUpdates::GetKeyValues(TextView sSection, TextView sKey) {
    std::vector<Text> values;
    app_.trail.Guard(
        "GetKeyValues",
        [&] {
            for (int i = 0; i < kMostValues; ++i) {
                Text value = ini_.GetFile(sSection, Concat({sKey, "_", Decimal(i, 2)}));
                if (value.empty()) break;
                values.push_back(std::move(value));
            }
        },
        [&] {
            return Concat({sSection, "/", sKey});
        });
    if (values.empty()) values.emplace_back();
    return values;
}

void frmUpdates::ShowVersions(const std::vector<Text>& asVers) {
    for (Text* best : {&sBestVers, &sBestFile, &sBestSize, &sBestFileUpd, &sBestSizeUpd}) best->clear();
    tvwUpdates.Clear();
    AddRoot();
    isListShown_ = true;
    AddComments(*tvwUpdates.Nodes().front(), Concat({"-", app_.sProduct}), true);
    for (const Text& section : asVers) AddVersion(section);
}

void frmUpdates::AddRoot() { tvwUpdates.Add("Root", app_.sProduct, {.bold = true, .expanded = true}); }

void frmUpdates::AddVersion(TextView sSection) {
    const auto read = [&](TextView key) { return ini_.GetFile(sSection, key); };
    const Text vers = read("VERS"), file = read("FILE"), size = read("SIZE");
    const Text fileUpd = read("FILE_UPD"), sizeUpd = read("SIZE_UPD");
    const Text key = KeyOf(vers);
    if (AdjustVersion(sBestVers) < key) {
        sBestVers = vers;
        sBestFile = file;
        sBestSize = size;
        sBestFileUpd = fileUpd;
        sBestSizeUpd = sizeUpd;
    }
    NodeLook look;
    if (key > AdjustVersion(app_.sVersion)) {
        look = {.foreColour = kWhite, .backColour = kBlack, .expanded = true};
    }
    UpdateNode& node =
        tvwUpdates.AddBehindFirst(sSection, Concat({vers, " - ", read("DATE"), " - ", read("DESCR")}), look);
    const bool hasUpdate = !fileUpd.empty() && !sizeUpd.empty();
    node.children.push_back({Concat({"Version complète       : "_t, file, " (", size, ")"}), {}, {}});
    node.children.push_back({Concat({"Version de Mise-à-jour : "_t,
                                     hasUpdate ? Concat({fileUpd, " (", sizeUpd, ")"}) : Text("<Aucune>")}),
                             {},
                             {}});
    AddComments(node, sSection, false);
}

void frmUpdates::AddComments(UpdateNode& node, TextView sSection, bool bold) {
    for (const Text& line : GetKeyValues(sSection, "COMMENT")) {
        if (line.empty()) continue;
        NodeLook look{.bold = bold};
        const TextView rest = AddColor(line, look);
        node.children.push_back({TabString(rest), look, {}});
    }
}

void frmUpdates::FillLabels() {
    const Text product = Concat({"-", app_.sProduct});
    const Text beta = ini_.GetFile(product, "URL_BETA"), folder = ini_.GetFile(product, "DIR_FILE");
    const auto address = [&](const Text& file) {
        return folder.empty() || file.empty() ? Text() : folder + file;
    };
    Fill(lblDownloadBeta, beta,
         Concat({FileNameOfAddress(beta), "  -  ", ini_.GetFile(product, "SIZE_BETA")}), "Pas de Bêta"_t);
    Fill(lblDownloadLastFull, address(sBestFile), Concat({"v", sBestVers, " Full  -  ", sBestSize}),
         "Pas de version \"Full\"");
    Fill(lblDownloadLastUpd, address(sBestFileUpd), Concat({"v", sBestVers, " Màj  -  "_t, sBestSizeUpd}),
         "Pas de version \"Màj\""_t);
}

void frmUpdates::Fill(DownloadLabel& label, TextView sTag, TextView sCaption, TextView sNothing) {
    label.Tag = IsWebAddress(sTag) ? sTag : TextView();
    label.Caption = sTag.empty() ? sNothing : sCaption;
}

void frmUpdates::BlinkWindow(int iCount, int iMilliseconds) {
    bStopBlink = false;
    const auto invert = [this](bool inverted) {
        if (OnInvertCaption) OnInvertCaption(inverted);
    };
    for (int i = 0; i < iCount; ++i) {
        invert(i % 2 == 0);
        app_.ports.events.YieldFor(iMilliseconds, bStopBlink);
    }
    invert(false);
}

}  // namespace swiftroll
