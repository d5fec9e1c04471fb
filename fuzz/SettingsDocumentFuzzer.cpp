// The text of a settings file: any bytes are a document or none, a document keeps what it holds when it is written and
// read again, and nothing that stands in a file gets in the way of a value that is stored.
#include "host/SettingsDocument.h"
#include "support/FuzzInput.h"
#include "support/Require.h"

using morvane::SettingsDocument;
using morvane::fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    morvane::fuzz::FuzzInput input(data, size);
    const std::string key = input.line();
    const std::string text = input.rest();
    const QByteArray content(text.data(), static_cast<int>(text.size()));

    std::optional<SettingsDocument> document = SettingsDocument::parse(content);
    require(!document || !content.contains('\0'), "a file with a NUL is damaged");
    if (document) {
        const QByteArray written = document->toByteArray();
        const auto again = SettingsDocument::parse(written);
        require(again.has_value(), "a document that was written can be read");
        require(again->toByteArray() == written, "and is written the same again");
        require(again->value(key) == document->value(key), "with the same values");
    } else {
        document.emplace();
    }

    const QByteArray neighbour = document->value(key + "x");
    document->setValue(key, content);
    const auto stored = SettingsDocument::parse(document->toByteArray());
    require(stored.has_value(), "a document with a stored value can be read");
    require(stored->value(key) == content, "the value comes back");
    require(stored->value(key + "x") == neighbour, "its neighbour is left alone");
    return 0;
}
