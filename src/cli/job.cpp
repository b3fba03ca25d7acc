#include "job.h"

#include "shell/frm_main.h"

namespace swiftroll::cli {

void Job::SetDefaults(frmMain& main) { main.chkGenerXSL.SetChecked(false); }

}  // namespace swiftroll::cli
