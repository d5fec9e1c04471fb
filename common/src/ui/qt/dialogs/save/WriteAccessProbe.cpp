// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

#include "ui/qt/dialogs/save/WriteAccessProbe_p.h"

#include "ui/qt/util/FilePath_p.h"

#include <boost/filesystem/operations.hpp>

#ifdef _WIN32
#include "host/StringConversion.h"
#include "ui/qt/dialogs/shell/ShellInterfaces.h"
#else
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include <string>
#include <utility>

namespace morvane::ui {

namespace fs = boost::filesystem;

namespace {

bool isAbsent(fs::file_type type)
{
    return type == fs::status_error || type == fs::file_not_found;
}

fs::path scratchName(boost::system::error_code& error)
{
    return fs::unique_path("%%%%-%%%%-%%%%-%%%%", error);
}

// Linux follows up to 40 links. This also limits the attempts if another process keeps creating and removing the file.
constexpr int maxAttempts = 41;

#ifdef _WIN32

using Error = DWORD;

bool isTaken(Error error)
{
    return error == ERROR_FILE_EXISTS || error == ERROR_ALREADY_EXISTS;
}

bool isNotThere(Error error)
{
    return error == ERROR_FILE_NOT_FOUND;
}

/** A file that is open for reading and writing, or the error that has prevented it. */
class OpenFile
{
public:
    OpenFile(fs::path path, DWORD furtherAccess, DWORD shared, DWORD disposition, DWORD flags)
        : m_handle(CreateFileW(morvane::utf8ToWideString(pathToUtf8(path.make_preferred())).c_str(),
              GENERIC_READ | GENERIC_WRITE | furtherAccess, shared, nullptr, disposition, FILE_ATTRIBUTE_NORMAL | flags,
              nullptr)),
          m_error(m_handle == INVALID_HANDLE_VALUE ? GetLastError() : ERROR_SUCCESS)
    {
    }
    ~OpenFile()
    {
        if (m_error == ERROR_SUCCESS) {
            CloseHandle(m_handle);
        }
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    Error error() const { return m_error; }

    /** Removes the file when it is closed, if that is allowed. */
    void remove() const
    {
        const DWORD everything = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
        const HANDLE again = ReOpenFile(m_handle, DELETE, everything, FILE_FLAG_DELETE_ON_CLOSE);
        if (again != INVALID_HANDLE_VALUE) {
            CloseHandle(again);
        }
    }

private:
    const HANDLE m_handle;
    const Error m_error;
};

Error openExisting(const fs::path& path)
{
    return OpenFile(path, 0, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING, 0).error();
}

/** Used if files may be created but not deleted, and if the file with this name was deleted a moment ago. */
Error makeAndTryToRemove(const fs::path& path)
{
    const OpenFile file(path, 0, FILE_SHARE_DELETE, CREATE_NEW, 0);
    if (file.error() == ERROR_SUCCESS) {
        file.remove();
    }
    return file.error();
}

/**
 * Creates the file exclusively. Closing its handle deletes it, so that another file that has got the name meanwhile is
 * not deleted. Other processes may rename a file to this name meanwhile, but cannot write to it.
 */
Error makeAndRemove(const fs::path& path)
{
    const Error error = OpenFile(path, DELETE, FILE_SHARE_DELETE, CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE).error();
    return error == ERROR_ACCESS_DENIED ? makeAndTryToRemove(path) : error;
}

/** Creating a file follows links on Windows. */
bool followLink(fs::path&)
{
    return false;
}

#else

using Error = int;

bool isTaken(Error error)
{
    return error == EEXIST;
}

bool isNotThere(Error error)
{
    return error == ENOENT;
}

template <typename Call>
int uninterrupted(Call call)
{
    int result = 0;
    do {
        result = call();
    } while (result == -1 && errno == EINTR);
    return result;
}

/** A file that is open for appending, or the error that has prevented it. */
class OpenFile
{
public:
    OpenFile(const fs::path& path, int flags)
        : m_descriptor(uninterrupted(
              [&] { return ::open(path.c_str(), O_RDWR | O_APPEND | O_CLOEXEC | O_NOCTTY | flags, 0666); })),
          m_error(m_descriptor == -1 ? errno : 0)
    {
    }
    ~OpenFile()
    {
        if (m_error == 0) {
            static_cast<void>(::close(m_descriptor)); // nothing was written
        }
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    Error error() const { return m_error; }

    /** Reads the status of this file, even if its name leads to another file now. @return whether that was possible */
    bool readStatus(struct stat& status) const
    {
        return uninterrupted([&] { return ::fstat(m_descriptor, &status); }) == 0;
    }

private:
    const int m_descriptor;
    const Error m_error;
};

Error openExisting(const fs::path& path)
{
    return OpenFile(path, 0).error();
}

void removeName(const fs::path& path)
{
    uninterrupted([&] { return ::unlink(path.c_str()); });
}

int renameFile(const fs::path& from, const fs::path& to)
{
    return uninterrupted([&] { return ::rename(from.c_str(), to.c_str()); });
}

/** Gives the file of another process its name back, unless another file has the name now. */
void putBack(const fs::path& scratch, const fs::path& path)
{
    // Unlike rename(), link() never replaces a file. Some file systems do not support it.
    if (uninterrupted([&] { return ::link(scratch.c_str(), path.c_str()); }) == 0 || errno == EEXIST) {
        removeName(scratch);
    } else {
        renameFile(scratch, path);
    }
}

/** Whether @p path leads to the file that was created, and the file is still empty. */
bool isStill(const struct stat& made, const fs::path& path)
{
    struct stat named = {};
    return uninterrupted([&] { return ::lstat(path.c_str(), &named); }) == 0 && made.st_dev == named.st_dev &&
           made.st_ino == named.st_ino && named.st_size == 0;
}

/**
 * Removes the file that was created if @p path still leads to it. Another file may get the name after the comparison.
 * So the file with this name is renamed first, in one step, and compared again under the new name.
 */
void removeMade(const fs::path& path, const struct stat& made)
{
    if (!isStill(made, path)) {
        return;
    }
    boost::system::error_code error;
    const fs::path scratch = path.parent_path() / scratchName(error);
    if (error || (renameFile(path, scratch) != 0 && !isNotThere(errno))) {
        removeName(path); // the file cannot be renamed
    } else if (isStill(made, scratch)) {
        removeName(scratch);
    } else {
        putBack(scratch, path);
    }
}

/** Creates the file exclusively, and removes it if it still has the name. */
Error makeAndRemove(const fs::path& path)
{
    const OpenFile file(path, O_CREAT | O_EXCL);
    struct stat made = {};
    if (file.error() == 0 && file.readStatus(made)) {
        removeMade(path, made); // while the file is open, no other file gets its inode number
    }
    return file.error();
}

/** Creating exclusively does not follow links. @return whether @p path was a link; it is the target then */
bool followLink(fs::path& path)
{
    boost::system::error_code error;
    fs::path target;
    do {
        target = fs::read_symlink(path, error);
    } while (error == boost::system::errc::interrupted);
    if (!error) {
        path = fs::absolute(target, path.parent_path());
    }
    return !error;
}

#endif

/** Creates exclusively, so that a file that another process has created is never removed. */
bool probeByCreating(fs::path path)
{
    for (int attempt = 0; attempt < maxAttempts; ++attempt) {
        const Error error = makeAndRemove(path);
        if (!isTaken(error)) {
            return error == 0;
        }
        if (followLink(path)) {
            continue;
        }
        // The file belongs to another process, which may have removed it meanwhile.
        const Error existing = openExisting(path);
        if (!isNotThere(existing)) {
            return existing == 0;
        }
    }
    return false;
}

} // namespace

bool probeOpenForAppend(fs::path candidate, bool removeAfter)
{
    if (!removeAfter) {
        const Error existing = openExisting(candidate);
        if (!isNotThere(existing)) {
            return existing == 0;
        }
    }
    return probeByCreating(std::move(candidate));
}

bool checkWriteAccess(const fs::path& target)
{
    boost::system::error_code error;
    fs::file_type type;
    do {
        type = fs::status(target, error).type();
    } while (error == boost::system::errc::interrupted);
    // A file may exist although its status cannot be read. Creating exclusively finds out.
    if (error || isAbsent(type)) {
        return probeOpenForAppend(target, true);
    }
    if (type != fs::directory_file) {
        return probeOpenForAppend(target, false);
    }
    // unique_path() must not replace per cent signs in the name of the directory.
    const fs::path scratch = scratchName(error);
    return !error && probeOpenForAppend(target / scratch, true);
}

} // namespace morvane::ui
