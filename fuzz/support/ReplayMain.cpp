// SPDX-FileCopyrightText: 2026 The Morvane authors
// SPDX-License-Identifier: MIT

// Feeds the files and directories on the command line to a harness. This checks the corpora in builds without a fuzzer.
// Fails when there is nothing to feed.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> filesIn(const fs::path& path)
{
    if (!fs::is_directory(path)) {
        return {path};
    }
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

void replay(const fs::path& file)
{
    std::printf("%s\n", file.filename().c_str());
    std::fflush(stdout);
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        std::printf("cannot be read\n");
        std::exit(1);
    }
    const std::vector<char> content{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(content.data()), content.size());
}

} // namespace

int main(int argc, char** argv)
{
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        for (const fs::path& file : filesIn(argv[i])) {
            replay(file);
            ++count;
        }
    }
    std::printf("%d inputs\n", count);
    return count == 0 ? 1 : 0;
}
