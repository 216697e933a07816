#include "qxVariantTable.h"

#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariants.h"

namespace {

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
    append(rows, "node", qxVariants::_nodeVariants);
    append(rows, "material", qxVariants::_materialVariants);
    append(rows, "light", qxVariants::_lightVariants);
    append(rows, "overlay", qxVariants::_overlayVariants);
    append(rows, "transform", qxVariants::_transformVariants);
    return rows;
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
