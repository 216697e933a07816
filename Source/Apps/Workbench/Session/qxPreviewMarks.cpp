#include "qxPreviewMarks.h"

#include "qxVariantSet.h"
#include "qxVariants.h"

#include <QFile>

namespace {

bool holds(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return !bytes.isEmpty() && file.size() == bytes.size() && file.open(QIODevice::ReadOnly)
        && file.readAll() == bytes;
}

} // namespace

qxPreviewMarks::qxPreviewMarks(const QMap<QString, QString> &previews)
{
    for (auto each = previews.begin(); each != previews.end(); ++each) {
        qxVariantSet *const set = qxVariants::findVariantSet(each.key());
        if (!set || holds(each.value(), set->getPreview()))
            continue;
        m_before[each.key()] = set->getPreview();
        set->setPreview(m_files.add(each.value()));
    }
}

qxPreviewMarks::~qxPreviewMarks()
{
    for (auto each = m_before.begin(); each != m_before.end(); ++each) {
        if (qxVariantSet *const set = qxVariants::findVariantSet(each.key()))
            set->setPreview(each.value());
    }
}
