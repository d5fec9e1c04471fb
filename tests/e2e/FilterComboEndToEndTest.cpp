#include "e2e/Eventually.h"
#include "e2e/GallerySession.h"

namespace morvane::test {

namespace {

class FilterComboEndToEnd : public GallerySession
{
protected:
    void SetUp() override
    {
        GallerySession::SetUp();
        openGallery(QStringLiteral("filter-combo"));
    }
};

TEST_F(FilterComboEndToEnd, filtersWhileOneTypesAndPicksWithTheMouse)
{
    const Accessible field = part(QStringLiteral("text"), QStringLiteral("File name"));
    clickInto(field);
    screen().press({Key::Control}, 'a');
    screen().type(QStringLiteral("lib"));
    closeGallery();
}

} // namespace

} // namespace morvane::test
