#include "qxKeyHints.h"

#include <QStringList>
#include <QVariant>
#include <QWidget>

namespace {

const char *const hintsProperty = "qxKeyHints"; ///< keys and effects in turn

} // namespace

void qxKeyHints::tell(QWidget &widget, const QList<Hint> &hints)
{
    QStringList texts;
    for (const Hint &hint : hints)
        texts << hint.keys << hint.effect;
    widget.setProperty(hintsProperty, texts);
}

QList<qxKeyHints::Hint> qxKeyHints::of(const QWidget &widget)
{
    QList<Hint> hints;
    const QStringList texts = widget.property(hintsProperty).toStringList();
    for (int place = 0; place + 1 < texts.size(); place += 2)
        hints.append({texts[place], texts[place + 1]});
    return hints;
}
