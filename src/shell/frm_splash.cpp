#include "shell/frm_splash.h"

#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {

frmSplash::frmSplash(Application& app)
    : Window("frmSplash"),
      lblVersion(*this, {"lblVersion"}),
      lblTitle(*this, {"lblTitle"}),
      lblDescription(*this, {"lblDescription", "Relevés, liens de parenté et extraits de fichiers GEDCOM"_t}),
      lblWeb(*this, {"lblWeb"}),
      lblMail(*this, {"lblMail"}) {
    Caption = app.MainCaption();
    lblVersion.Caption = Concat({"Version ", app.sVersion});
    lblTitle.Caption = app.sProduct;
    lblWeb.Caption = app.sWebAddress;
    lblMail.Caption = app.sMailAddress;
    lblWeb.Operation = [&app] { app.ports.desktop.OpenAddress(app.sWebAddress); };
    lblMail.Operation = [&app] {
        app.ports.desktop.OpenAddress(Concat({"mailto:", app.sMailAddress, "?Subject=", app.MainCaption()}));
    };
}

}  // namespace swiftroll
