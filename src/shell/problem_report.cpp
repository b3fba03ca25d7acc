#include "shell/problem_report.h"

#include "app/french_date.h"
#include "shell/settings/registry_text.h"
#include "shell/system_name.h"
#include "shell/work_notice.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {
namespace {

constexpr TextView kStoreRoot = "HKEY_CURRENT_USER\\Software\\SwiftRoll";
constexpr TextView kRecipient = "SwiftRoll";
constexpr auto kNoLog = "\r\n(Ce dernier n'existe pas encore : aucune erreur n'a été notée.)"_t;

}  // namespace

ProblemReport::ProblemReport(Application& app, ReportCommands& commands, frmUpdates& updates,
                             SavedSettings& settings)
    : app_(app), updates_(updates), settings_(settings) {
    commands.mnuSaveParams.Operation = [this] { mnuSaveParams_Click(); };
    commands.mnuCheckUpdate.Operation =
        commands.PicturepicKeepUpdated.Operation = [this] { mnuCheckUpdate_Click(); };
    updates_.OnFailed = [this] { OfferAnotherCheck(app_, this, [this] { mnuCheckUpdate_Click(); }); };
}

void ProblemReport::mnuCheckUpdate_Click() {
    app_.messageBar.Remove(this);
    app_.trail.Guard(
        "mnuCheckUpdate_Click",
        [this] {
            updates_.Show();
            updates_.GetUpdates(false);
        },
        [] { return Text(); });
}

void ProblemReport::mnuSaveParams_Click() {
    settings_.SaveAllControls();
    SendReport();
}

void ProblemReport::SendReport() {
    TextView step = "SaveInFile";
    const Text sLogFile = app_.PathOf(app_.sUserAppData, Concat({app_.sProduct, ".log"}));
    const Text sRegFile = app_.PathOf(
        app_.sUserAppData,
        Concat({app_.sProduct, "_", ReplaceAll(ReplaceAll(app_.sVersion, ".", "_"), " ", "_"), ".reg.txt"}));
    app_.trail.Guard(
        "GetAllControls",
        [&] {
            if (!ExportSettings(sRegFile)) return;
            const BoxAnswer answer =
                app_.Box(" - Send Reg",
                         Concat({"En cas de problème, merci de m'envoyer les fichiers :"_t, kLineEnd,
                                 kLineEnd, sRegFile, kLineEnd, "et", kLineEnd, sLogFile,
                                 app_.ports.files.Exists(sLogFile) ? TextView() : kNoLog}),
                         BoxButtons::OkCancel, BoxIcon::Exclamation);
            if (answer != BoxAnswer::Ok) return;
            step = "SendMail";
            SendMail(sRegFile, sLogFile, step);
        },
        [&] {
            return step == "SaveInFile"
                       ? Concat({step, "/"})
                       : Concat({step, "/", app_.sUserAppData, "/", sRegFile, "/", sLogFile});
        });
}

bool ProblemReport::ExportSettings(TextView sRegFile) {
    try {
        const Text text = modCommon::RegistryText(kStoreRoot, app_.ports.settings.Everything());
        const auto file = app_.ports.files.Open(sRegFile, Files::Mode::Write);
        file->Write(text);
        file->Close();
        return true;
    } catch (const Failure&) {
        app_.Box(" - Regedit", Concat({"Impossible d'exécuter Regedit"_t, kLineEnd, sRegFile, kLineEnd, "\"",
                                       kStoreRoot, "\""}));
        return false;
    }
}

void ProblemReport::SendMail(TextView sRegFile, TextView sLogFile, TextView& step) {
    const Moment now = app_.ports.clock.Now();
    MailMessage mail;
    mail.recipient = kRecipient;
    mail.address = app_.sMailAddress;
    mail.subject = Concat({app_.sProduct, " v", app_.sVersion, " : Rapport d'erreur"});
    mail.body = Concat(
        {ShortDate(now), " ", LongTime(now), kLineEnd, modCommon::GetWinVersion(app_.ports.machine), kLineEnd,
         kLineEnd, "==> Si les 2 fichiers suivants n'ont pas été joints à cet eMail, merci de le faire :"_t,
         kLineEnd, kLineEnd, "==> 1. ", sRegFile, kLineEnd, "==> 2. ", sLogFile, kLineEnd, kLineEnd,
         "Merci de m'indiquer comment vous pouvez reproduire l'erreur le cas échéant."_t});
    step = "SendMail Attach";
    mail.attachments = {Text(sRegFile)};
    if (app_.ports.files.Exists(sLogFile)) mail.attachments.emplace_back(sLogFile);
    const Text sDraft = app_.PathOf(app_.sUserAppData, Concat({app_.sProduct, "_Rapport.eml"}));
    if (!app_.ports.mail.Compose(mail, sDraft)) return;
    app_.Box(
        " - Send Reg",
        Concat(
            {"Aucun programme de messagerie n'a pu être ouvert. Le message et ses fichiers joints sont ici :"_t,
             kLineEnd, sDraft, kLineEnd, "Ouvrez-le avec votre messagerie, ou envoyez-le à "_t,
             app_.sMailAddress, "."}));
}

}  // namespace swiftroll
