#include "qxMemoryLimit.h"

#include "Files/qxMemoryBudget.h"

#include <QCommandLineParser>

namespace {

const QString name = QStringLiteral("memory-limit");

} // namespace

QCommandLineOption qxMemoryLimit::option()
{
    return {name,
            QStringLiteral("How much memory the content of a scene file may take, such as 500MB or "
                           "4GB. Without it, %1.")
                .arg(qxMemoryBudget::text(double(qxMemoryBudget::limit()))),
            QStringLiteral("SIZE")};
}

bool qxMemoryLimit::take(const QCommandLineParser &parser)
{
    if (!parser.optionNames().contains(name))
        return true;
    const qint64 bytes = qxMemoryBudget::fromText(parser.value(name));
    if (bytes > 0)
        qxMemoryBudget::setLimit(bytes);
    return bytes > 0;
}

QString qxMemoryLimit::flaw(const QCommandLineParser &parser)
{
    return QStringLiteral("--%1 %2: a size is written like 500MB or 4GB")
        .arg(name, parser.value(name));
}
