#pragma once

class QJsonObject;
class QString;
class qxFileMerge;

/// What a merge of files could not bring together, and notes.
namespace qxMergeReport {

/// For people, with what became of each conflict; `name` is that of the file. Empty when there is
/// nothing to tell.
QString text(const qxFileMerge &merge, const QString &name);
/// For programs.
QJsonObject json(const qxFileMerge &merge);

} // namespace qxMergeReport
