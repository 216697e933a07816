#include "qxDocumentBindings.h"

#include "qxRegistryDocument.h"
#include "qxRegistryEdit.h"
#include "qxSetTable.h"
#include "qxSetTableReader.h"
#include "qxText.h"

#include <boost/python.hpp>

namespace python = boost::python;

namespace {

/// Raises a ValueError.
[[noreturn]] void refuse(const QString &reason)
{
    PyErr_SetString(PyExc_ValueError, qxText::toUtf8(reason).c_str());
    python::throw_error_already_set();
    std::abort(); // not reached
}

/// What the session holds.
qxDocument current()
{
    qxDocument document = qxRegistryDocument::current();
    document.settle();
    return document;
}

std::string getVariantSetTable(const std::string &separator)
{
    if (separator != "," && separator != ";" && separator != "\t")
        refuse(QStringLiteral("a separator is a comma, a semicolon or a tab"));
    const qxDocument document = current();
    if (qxSetTable::mostBytes(document) > INT_MAX)
        refuse(QStringLiteral("the table would be too large"));
    return qxSetTable::write(document, {separator[0], false}).toStdString();
}

bool editVariantSets(const std::string &table)
{
    const QByteArray bytes = QByteArray::fromStdString(table);
    const qxSetTableReader::Reading reading = qxSetTableReader::read(bytes, current());
    QStringList reasons;
    for (const qxSetTableReader::Flaw &flaw : reading.flaws)
        reasons +=
            flaw.cell.isEmpty() ? flaw.reason : flaw.cell + QLatin1String(": ") + flaw.reason;
    if (reading.furtherFlaws > 0)
        reasons += QStringLiteral("and %1 more").arg(reading.furtherFlaws);
    if (!reasons.isEmpty())
        refuse(reasons.join(QLatin1Char('\n')));
    return qxRegistryEdit::apply(reading.document);
}

} // namespace

void qxDocumentBindings::define()
{
    const python::docstring_options onlyOwnTexts(true, false, false);
    const python::scope names(python::import("__main__"));
    python::def("getVariantSetTable", getVariantSetTable, python::arg("separator") = ",",
                "The variant sets as a table, CSV: a row for each set, a column for each variant, "
                "a state in each cell. A comma, a semicolon or a tab separates the cells.");
    python::def("editVariantSets", editVariantSets, python::arg("table"),
                "Edits the variant sets as such a table says, of which rows and columns may be "
                "left out; whether that changed anything. Raises a ValueError that tells of every "
                "wrong cell, and changes nothing then.");
}
