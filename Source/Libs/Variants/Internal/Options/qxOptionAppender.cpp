#include "Internal/Options/qxOptionAppender.h"

namespace {

/// Up to this length going through the list is as fast as asking an index.
constexpr std::size_t ShortList = 16;

} // namespace

void qxOptionAppender::add(bool action, const QString &name, const QString &shortcut)
{
    if (m_variant.options.size() < ShortList) {
        m_variant.qxVariant::add(action, name, shortcut);
        return;
    }
    if (m_names.isEmpty()) {
        for (const qxVariantOption &option : m_variant.options)
            m_names.insert(option.name);
    }
    const int known = m_names.size();
    m_names.insert(name);
    if (m_names.size() > known)
        m_variant.options.push_back(qxVariantOption::make(action, name, shortcut));
}
