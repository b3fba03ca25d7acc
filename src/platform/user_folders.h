#pragma once

#include <string>

#include "app/ports.h"

namespace swiftroll::platform {

/// The folders of the user and of the program: XDG base directories on Linux, the usual places elsewhere.
class UserFolders : public Folders {
  public:
    Text UserData() override;
    /// Folder of this program's settings, empty where the user has no folder for such.
    Text Settings();
    Text UserDocuments() override;
    Text Temporary() override;
    Text Models() override;
    Text Program() override;
    void Create(TextView folder) override;
    Text Separator() override;
};

}  // namespace swiftroll::platform
