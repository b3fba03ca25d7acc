#include "shell/file_names.h"

#include "text/edit.h"

namespace swiftroll::modCommon {

Text ChangeExtension(TextView sFile, TextView sExt) {
    const TextView name = FileNamePart(sFile);
    const TextView stem = name.substr(0, name.rfind('.'));
    return Concat({sFile.substr(0, sFile.size() - name.size()), stem, ".", sExt});
}

}  // namespace swiftroll::modCommon
