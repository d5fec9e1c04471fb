#include "ui/qt/dialogs/WriteAccessProbe.h"

#include "ui/qt/dialogs/FilePath.h"

#include <boost/filesystem/operations.hpp>

#ifdef _WIN32
#include "host/StringConversion.h"
#endif

#include <cerrno>
#include <cstdio>
#include <string>
#include <utility>

namespace fs = boost::filesystem;

namespace {

bool isAbsent(fs::file_type type)
{
    return type == fs::status_error || type == fs::file_not_found;
}

std::FILE* openFile(const fs::path& path, const char* mode)
{
    fs::path preferred = path;
    const std::string name = pathToUtf8(preferred.make_preferred());
#ifdef _WIN32
    return _wfopen(morvane::utf8ToWideString(name).c_str(), morvane::utf8ToWideString(mode).c_str());
#else
    std::FILE* file = nullptr;
    do {
        file = std::fopen(name.c_str(), mode);
    } while (!file && errno == EINTR);
    return file;
#endif
}

bool opens(const fs::path& path, const char* mode)
{
    std::FILE* const file = openFile(path, mode);
    if (!file) {
        return false;
    }
    std::fclose(file);
    return true;
}

void removeFile(const fs::path& path)
{
    boost::system::error_code error;
    do {
        fs::remove(path, error);
    } while (error == boost::system::errc::interrupted);
}

#ifdef _WIN32

bool probeByCreating(const fs::path& candidate)
{
    boost::system::error_code ignored;
    const bool wasAbsent = isAbsent(fs::symlink_status(candidate, ignored).type());
    const bool opened = opens(candidate, "a+");
    if (wasAbsent) {
        removeFile(candidate);
    }
    return opened;
}

#else

// As many links as the kernel follows.
constexpr int maxLinks = 40;

/** Creating exclusively tells what was made here, and may be removed, from what somebody else made. */
bool probeByCreating(fs::path path)
{
    for (int followed = 0; followed <= maxLinks; ++followed) {
        if (opens(path, "a+x")) {
            removeFile(path);
            return true;
        }
        if (errno != EEXIST) {
            return false;
        }
        boost::system::error_code error;
        const fs::path target = fs::read_symlink(path, error);
        if (error == boost::system::errc::interrupted) {
            continue;
        }
        if (error) {
            // No link: made by somebody else meanwhile. A link that cannot be read may lead to nothing, which opening
            // it for appending would make.
            return error == boost::system::errc::invalid_argument && opens(path, "a+");
        }
        path = fs::absolute(target, path.parent_path());
    }
    return false;
}

#endif

} // namespace

bool probeOpenForAppend(fs::path candidate, bool removeAfter)
{
    return removeAfter ? probeByCreating(std::move(candidate)) : opens(candidate, "a+");
}

bool checkWriteAccess(const fs::path& target)
{
    boost::system::error_code error;
    fs::file_type type;
    do {
        type = fs::status(target, error).type();
    } while (error == boost::system::errc::interrupted);
    if (error || isAbsent(type)) {
        return probeOpenForAppend(target, true);
    }
    if (type != fs::directory_file) {
        return probeOpenForAppend(target, false);
    }
    // Joined afterwards: a per cent sign in the name of the directory is no placeholder.
    const fs::path scratch = fs::unique_path("%%%%-%%%%-%%%%-%%%%", error);
    return !error && probeOpenForAppend(target / scratch, true);
}
