#pragma once

#include <QStringList>

/// Why a name leads nowhere in the scene: one line for people, with the names most like it.
namespace qxUnknownName {

QString set(const QString &name);
QString group(const QString &name);
QString viewpoint(const QString &name);
QString node(const QString &name);
/// One of `names`.
QString animation(const QString &name, const QStringList &names);

} // namespace qxUnknownName
