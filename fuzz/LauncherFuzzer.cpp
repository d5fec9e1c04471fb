// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// The launcher with the native dialog and a Shell without windows. The captions, filters and selections from the host
// are hostile, and so are the names, types and folders from the user.
#include "support/FuzzInput.h"
#include "support/QuietApplication.h"
#include "support/Require.h"
#include "testing/RecordingDialog.h"
#include "testing/RecordingShell.h"
#include "ui/qt/dialogs/LaunchFileDialog.h"

#include <algorithm>

namespace {

using morvane::fuzz::fromUtf8;
using morvane::fuzz::FuzzInput;
using morvane::fuzz::require;
using morvane::test::RecordingDialog;
using morvane::test::RecordingShell;

std::vector<std::string> linesFrom(FuzzInput& input)
{
    std::vector<std::string> lines;
    for (int count = input.below(5); count > 0; --count) {
        lines.push_back(input.line());
    }
    return lines;
}

void playUser(RecordingDialog& dialog, FuzzInput& input)
{
    for (int step = 0; step < 16 && !input.isEmpty(); ++step) {
        switch (input.below(6)) {
        case 0:
            dialog.userPicksType(input.byte());
            break;
        case 1:
            dialog.userTypesName(fromUtf8(input.line()).remove(QChar::Null));
            break;
        case 2:
            dialog.userEntersFolder(QLatin1Char('/') + fromUtf8(input.line()).remove(QChar::Null));
            break;
        case 3:
            dialog.userAccepts();
            break;
        case 4:
            dialog.userCancels();
            break;
        default:
            dialog.userClicks(input.byte());
            break;
        }
    }
}

/** An upper limit: each separator in a filter adds one filter. */
int countOfFilters(const std::vector<std::string>& filters)
{
    std::size_t count = filters.size();
    for (const std::string& filter : filters) {
        count += static_cast<std::size_t>(std::count(filter.begin(), filter.end(), ';'));
    }
    return static_cast<int>(count);
}

std::vector<std::string> namesOf(const QStringList& paths)
{
    std::vector<std::string> names;
    for (const QString& path : paths) {
        names.push_back(path.toStdString());
    }
    return names;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    morvane::fuzz::startQuietApplication();
    FuzzInput input(data, size);
    const int options = input.byte();
    const int initialIndex = input.number<std::int8_t>();
    const std::string caption = input.line();
    const std::vector<std::string> filters = linesFrom(input);
    const std::vector<std::string> selection = linesFrom(input);
    QStringList results;
    for (const std::string& line : linesFrom(input)) {
        results.append(QLatin1Char('/') + fromUtf8(line).remove(QChar::Null));
    }

    if ((options & 2) == 0) {
        results = results.mid(0, 1);
    }

    RecordingShell shell;
    const morvane::ui::ShellOverride shellOverride(shell);
    shell.script.results = results;
    shell.script.announcesOpening = (options & 4) != 0;
    shell.script.duringShow = [&input](RecordingDialog& dialog) { playUser(dialog, input); };
    if ((options & 8) != 0) {
        shell.failCall(input.byte() + 1);
    }

    const std::vector<std::string> before{"old"};
    std::vector<std::string> files = before;
    int filterIndex = -77;
    const bool accepted = morvane::ui::LaunchFileDialog(
        files, filterIndex, caption, filters, selection, (options & 1) != 0, (options & 2) != 0, initialIndex);
    if (accepted) {
        require(filterIndex >= -1, "the index of the filter is a position or none");
        require(filterIndex < countOfFilters(filters), "no position behind the filters");
        const bool severalToSave = (options & 3) == 3; // which a save dialog of the Shell does not tell
        if (!results.isEmpty() && !severalToSave && (options & 8) == 0) {
            require(files == namesOf(results), "the chosen files come back");
        }
    } else {
        require(files == before && filterIndex == -77, "giving up changes nothing");
    }
    require(shell.liveObjects() == 0 && shell.liveStrings() == 0, "the Shell gets everything back");
    require((options & 8) != 0 || shell.apartments() == 0, "the apartment is left as often as joined");
    return 0;
}
