#include "ui/qt/controls/EntryMatcher_p.h"

namespace morvane::ui {

EntryFit EntryMatcher::fit(const QString& entry) const
{
    if (m_contained.indexIn(entry) < 0) {
        return EntryFit::None;
    }
    if (entry == m_text) {
        return EntryFit::Equal;
    }
    return entry.compare(m_text, Qt::CaseInsensitive) == 0 ? EntryFit::EqualButForCase : EntryFit::Contained;
}

} // namespace morvane::ui
