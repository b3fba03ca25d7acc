#include "shell/file_names.h"

#include "text/edit.h"
#include "writers/output_format.h"

namespace swiftroll::modCommon {

Text ChangeExtension(TextView sFile, TextView sExt) {
    const TextView name = FileNamePart(sFile);
    const TextView stem = name.substr(0, name.rfind('.'));
    return Concat({sFile.substr(0, sFile.size() - name.size()), stem, ".", sExt});
}

bool HasBaseName(TextView sFile) {
    const TextView name = FileNamePart(sFile);
    return !name.empty() && !name.starts_with('.');
}

Text ProposedName(TextView sFile, TextView sInput) {
    const TextView name = FileNamePart(sFile), input = FileNamePart(sInput);
    if (!name.starts_with('.') || !HasBaseName(sInput)) return Text(sFile);
    return Concat({sFile.substr(0, sFile.size() - name.size()), input.substr(0, input.rfind('.')), name});
}

namespace {

template <class Fields>
const Text& OfFormat(const OptionRecord& options, const Fields& fields) {
    return fields[static_cast<std::size_t>(options.optOutExtension.Index())].Get();
}

void ChangeName(ComboBox& combo, const ComboBox& input, TextView sExt) {
    const Text name = combo.Get().empty() ? input.Get() : combo.Get();
    combo.SetText(ChangeExtension(name, sExt));
}

}  // namespace

const Text& OutExtension(const OptionRecord& options) { return OfFormat(options, options.txtOutExtension); }

const Text& ModelExtension(const OptionRecord& options) {
    return OfFormat(options, options.txtModelExtension);
}

const Text& KinshipExtension(const OptionRecord& options) {
    return options.txtOutExtension[modGenFileFromModel::kHtmlFormat].Get();
}

void ChangeSwiftOutExtension(OptionRecord& options) {
    ChangeName(options.cboSwiftOut, options.cboGedIn, OutExtension(options));
}

void ChangeGedOutExtension(OptionRecord& options) {
    ChangeName(options.cboGedOut, options.cboGedIn, "Extrait.ged");
}

void ChangeModelExtension(OptionRecord& options) {
    options.cboFileModel.SetText(ChangeExtension(options.cboFileModel.Get(), ModelExtension(options)));
}

void ChangeKinshipExtension(OptionRecord& options) {
    options.cboKinship.SetText(ChangeExtension(options.cboKinship.Get(), KinshipExtension(options)));
}

}  // namespace swiftroll::modCommon
