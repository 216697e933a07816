#include "Repair/qxBreak.h"

namespace {

/// How good the best candidate must be.
constexpr double GoodEnough = 0.5;

} // namespace

QString qxBreak::wordOf(qxNamed named)
{
    static const char *const words[] = {"group",   "set",      "variant", "state",     "node",
                                        "overlay", "material", "path",    "viewpoint", "animation"};
    return QLatin1String(words[int(named)]);
}

QString qxBreak::key() const
{
    const QString word = wordOf(named);
    if (named == qxNamed::State)
        return QStringLiteral("%1-%2:%3:%4")
            .arg(kind->word, isDefault ? QStringLiteral("default") : word, variant, name);
    if (named == qxNamed::Variant)
        return QStringLiteral("%1-variant:%2").arg(kind->word, name);
    return QStringLiteral("%1:%2").arg(kind ? kind->word + QLatin1String("-object") : word, name);
}

const qxRepairCandidate *qxBreak::clear() const
{
    if (isContested || candidates.empty() || candidates.front().score < GoodEnough)
        return nullptr;
    const bool isAlone =
        candidates.size() == 1 || candidates[0].score - candidates[1].score >= Ahead;
    return isAlone ? &candidates.front() : nullptr;
}
