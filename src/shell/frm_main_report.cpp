// The problem report and the update check.
#include "app/french_date.h"
#include "shell/frm_main.h"
#include "shell/registry_text.h"
#include "shell/system_name.h"
#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {
namespace {

constexpr TextView kStoreRoot = "HKEY_CURRENT_USER\\Software\\SwiftRoll";
constexpr TextView kRecipient = "SwiftRoll";
constexpr auto kNoLog = "\r\n(Ce dernier n'existe pas encore : aucune erreur n'a été notée.)"_t;

}  // namespace

void frmMain::BindReport() {
    mnuSaveParams.Operation = [this] { mnuSaveParams_Click(); };
    mnuCheckUpdate.Operation = PicturepicKeepUpdated.Operation = [this] { mnuCheckUpdate_Click(); };
}

void frmMain::mnuCheckUpdate_Click() {
    trail.Guard(
        "mnuCheckUpdate_Click",
        [this] {
            frmUpdates.Show();
            frmUpdates.GetUpdates(false);
        },
        [] { return Text(); });
}

void frmMain::mnuSaveParams_Click() {
    SaveAllControls();
    SendReport();
}

void frmMain::SendReport() {
    TextView step = "SaveInFile";
    const Text sLogFile = PathOf(sUserAppData, Concat({sProduct, ".log"}));
    const Text sRegFile =
        PathOf(sUserAppData,
               Concat({sProduct, "_", ReplaceAll(ReplaceAll(sVersion, ".", "_"), " ", "_"), ".reg.txt"}));
    trail.Guard(
        "GetAllControls",
        [&] {
            if (!ExportSettings(sRegFile)) return;
            const BoxAnswer answer =
                Box(" - Send Reg",
                    Concat({"En cas de problème, merci de m'envoyer les fichiers :"_t, kLineEnd, kLineEnd,
                            sRegFile, kLineEnd, "et", kLineEnd, sLogFile,
                            ports.files.Exists(sLogFile) ? TextView() : kNoLog}),
                    BoxButtons::OkCancel, BoxIcon::Exclamation);
            if (answer != BoxAnswer::Ok) return;
            step = "SendMail";
            SendMail(sRegFile, sLogFile, step);
        },
        [&] {
            return step == "SaveInFile" ? Concat({step, "/"})
                                        : Concat({step, "/", sUserAppData, "/", sRegFile, "/", sLogFile});
        });
}

bool frmMain::ExportSettings(TextView sRegFile) {
    try {
        const Text text = modCommon::RegistryText(kStoreRoot, ports.settings.Everything());
        const auto file = ports.files.Open(sRegFile, Files::Mode::Write);
        file->Write(text);
        file->Close();
        return true;
    } catch (const Failure&) {
        Box(" - Regedit", Concat({"Impossible d'exécuter Regedit"_t, kLineEnd, sRegFile, kLineEnd, "\"",
                                  kStoreRoot, "\""}));
        return false;
    }
}

void frmMain::SendMail(TextView sRegFile, TextView sLogFile, TextView& step) {
    const Moment now = ports.clock.Now();
    MailMessage mail;
    mail.recipient = kRecipient;
    mail.address = sMailAddress;
    mail.subject = Concat({sProduct, " v", sVersion, " : Rapport d'erreur"});
    mail.body = Concat(
        {ShortDate(now), " ", LongTime(now), kLineEnd, modCommon::GetWinVersion(ports.machine), kLineEnd,
         kLineEnd, "==> Si les 2 fichiers suivants n'ont pas été joints à cet eMail, merci de le faire :"_t,
         kLineEnd, kLineEnd, "==> 1. ", sRegFile, kLineEnd, "==> 2. ", sLogFile, kLineEnd, kLineEnd,
         "Merci de m'indiquer comment vous pouvez reproduire l'erreur le cas échéant."_t});
    step = "SendMail Attach";
    mail.attachments = {Text(sRegFile)};
    if (ports.files.Exists(sLogFile)) mail.attachments.emplace_back(sLogFile);
    const Text sDraft = PathOf(sUserAppData, Concat({sProduct, "_Rapport.eml"}));
    if (!ports.mail.Compose(mail, sDraft)) return;
    Box(" - Send Reg",
        Concat(
            {"Aucun programme de messagerie n'a pu être ouvert. Le message et ses fichiers joints sont ici :"_t,
             kLineEnd, sDraft, kLineEnd, "Ouvrez-le avec votre messagerie, ou envoyez-le à "_t, sMailAddress,
             "."}));
}

}  // namespace swiftroll
