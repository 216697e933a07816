#include "qxVariantTable.h"

#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariants.h"

namespace {

const char *const words[] = {"node", "material", "light", "overlay", "transform"};

template <class List>
void append(QList<qxVariantRow> &rows, const char *kind, const List &variants)
{
    for (qxVariant *variant : variants)
        rows += qxVariantRow{kind, variant};
}

} // namespace

QList<qxVariantRow> qxVariantTable::all()
{
    QList<qxVariantRow> rows;
    append(rows, words[0], qxVariants::_nodeVariants);
    append(rows, words[1], qxVariants::_materialVariants);
    append(rows, words[2], qxVariants::_lightVariants);
    append(rows, words[3], qxVariants::_overlayVariants);
    append(rows, words[4], qxVariants::_transformVariants);
    return rows;
}

QStringList qxVariantTable::kinds()
{
    QStringList kinds;
    for (const char *word : words)
        kinds += QLatin1String(word);
    return kinds;
}

QList<qxVariantRow> qxVariantTable::named(const QString &name)
{
    QList<qxVariantRow> rows;
    for (const qxVariantRow &row : all()) {
        if (row.variant->name == name)
            rows += row;
    }
    return rows;
}
