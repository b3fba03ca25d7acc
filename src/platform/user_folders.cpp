#include "platform/user_folders.h"

#include <cstdlib>
#include <filesystem>

#ifdef _WIN32
#include <windows.h>
#endif
#ifdef __APPLE__
#include <mach-o/dyld.h>
#endif

#include "text/code_page.h"
#include "text/edit.h"

namespace swiftroll::platform {
namespace {

namespace fs = std::filesystem;

fs::path FromEnvironment(const char* variable) {
    const char* value = std::getenv(variable);
    return value == nullptr ? fs::path() : fs::path(value);
}

fs::path Home() {
#ifdef _WIN32
    return FromEnvironment("USERPROFILE");
#else
    return FromEnvironment("HOME");
#endif
}

fs::path ProgramFile() {
#if defined(_WIN32)
    wchar_t name[32768];
    return fs::path(name, name + GetModuleFileNameW(nullptr, name, 32768));
#elif defined(__APPLE__)
    char name[4096];
    std::uint32_t size = sizeof name;
    return _NSGetExecutablePath(name, &size) == 0 ? fs::path(name) : fs::path();
#else
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error);
#endif
}

Text TextOf(const fs::path& path) {
    Text text = FileNameToText(path.string());
    while (text.size() > 1 && (text.back() == '/' || text.back() == '\\')) text.pop_back();
    return text;
}

/// Where the system keeps what programs write for the user; on Linux the folder that a variable names, or one
/// below the home folder.
Text UserFolder([[maybe_unused]] const char* variable, [[maybe_unused]] const fs::path& belowHome) {
#if defined(_WIN32)
    return TextOf(FromEnvironment("APPDATA"));
#elif defined(__APPLE__)
    return Home().empty() ? Text() : TextOf(Home() / "Library" / "Application Support");
#else
    const fs::path named = FromEnvironment(variable);
    if (named.is_absolute()) return TextOf(named);
    return Home().empty() ? Text() : TextOf(Home() / belowHome);
#endif
}

}  // namespace

Text UserFolders::UserData() { return UserFolder("XDG_DATA_HOME", fs::path(".local") / "share"); }

Text UserFolders::Settings() {
    const Text folder = UserFolder("XDG_CONFIG_HOME", ".config");
    return folder.empty() ? folder : Concat({folder, Separator(), "SwiftRoll"});
}

Text UserFolders::UserDocuments() {
    const fs::path named = FromEnvironment("XDG_DOCUMENTS_DIR");
    if (named.is_absolute()) return TextOf(named);
    if (Home().empty()) return {};
    std::error_code ignored;
    const fs::path documents = Home() / "Documents";
    return TextOf(fs::is_directory(documents, ignored) ? documents : Home());
}

Text UserFolders::Temporary() {
    std::error_code error;
    const fs::path folder = fs::temp_directory_path(error);
    return error ? Text() : TextOf(folder);
}

Text UserFolders::Program() { return TextOf(ProgramFile().parent_path()); }

Text UserFolders::Models() {
    const fs::path program = ProgramFile().parent_path();
    std::error_code ignored;
    for (const fs::path& folder : {program, program / SWIFTROLL_DATA_FOLDER / "models"}) {
        if (fs::exists(folder / "SwiftRoll.Modele.html", ignored)) return TextOf(folder.lexically_normal());
    }
    return TextOf(program);
}

void UserFolders::Create(TextView folder) {
    std::error_code ignored;
    fs::create_directories(fs::path(FileNameFromText(folder)), ignored);
}

Text UserFolders::Separator() { return Text(1, static_cast<char>(fs::path::preferred_separator)); }

}  // namespace swiftroll::platform
