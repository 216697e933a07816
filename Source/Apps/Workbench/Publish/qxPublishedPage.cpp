#include "Publish/qxPublishedPage.h"

#include "Publish/qxViewerFiles.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

const char *const templateName = "index.html";
const char *const scriptName = "viewer.js";
const char *const styleName = "viewer.css";

QByteArray viewerFile(const char *name)
{
    QFile file(QDir(qxViewerFiles::folder()).filePath(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// JSON that may stand in a script element, whatever the names of a scene are.
QByteArray jsonForHtml(const QJsonObject &object)
{
    QByteArray text = QJsonDocument(object).toJson(QJsonDocument::Compact);
    return text.replace('<', "\\u003c");
}

/// How a content security policy names an inline script or style.
QByteArray sourceOf(const QByteArray &text)
{
    const QByteArray sum = QCryptographicHash::hash(text, QCryptographicHash::Sha256);
    return "'sha256-" + sum.toBase64() + "'";
}

/// Nothing but the page's own files is ever asked for.
QByteArray policyOf(const QByteArray &script, const QByteArray &style, const QByteArray &own)
{
    return "default-src 'none'; script-src " + script + " 'wasm-unsafe-eval'; style-src " + style
        + "; img-src " + own + "data: blob:; connect-src " + own
        + "data: blob:; worker-src blob:; base-uri 'none'; form-action 'none'";
}

/// Puts values in the place of marks such as {{title}}, each once.
QByteArray filled(const QByteArray &text, const QMap<QByteArray, QByteArray> &values)
{
    QByteArray result;
    int done = 0;
    for (int begin = text.indexOf("{{"); begin >= 0; begin = text.indexOf("{{", done)) {
        const int end = text.indexOf("}}", begin);
        if (end < 0)
            break;
        result += text.mid(done, begin - done);
        result += values.value(text.mid(begin + 2, end - begin - 2));
        done = end + 2;
    }
    return result + text.mid(done);
}

QByteArray pageOf(const qxPublication &publication, const QMap<QByteArray, QByteArray> &parts)
{
    QMap<QByteArray, QByteArray> values = parts;
    values["title"] = publication.title.toHtmlEscaped().toUtf8();
    values["language"] = publication.language.toLatin1();
    return filled(viewerFile(templateName), values);
}

/// What of the publication refers to files.
QJsonObject withFiles(const qxPublication &publication, qxPageFiles &files)
{
    QJsonObject object = publication.published;
    QJsonArray sets = object["sets"].toArray();
    for (int i = 0; i < sets.size(); ++i) {
        QJsonObject set = sets[i].toObject();
        const QByteArray preview = publication.previews.value(set["name"].toString());
        if (!preview.isEmpty())
            set["preview"] = files.add(QStringLiteral("previews/%1.jpg").arg(i + 1), preview);
        sets[i] = set;
    }
    object["sets"] = sets;
    QJsonArray lightings = object["lightings"].toArray();
    for (int i = 0; i < lightings.size(); ++i) {
        QJsonObject lighting = lightings[i].toObject();
        lighting["picture"] =
            files.add(QStringLiteral("lights/%1.hdr").arg(i + 1), publication.lights.value(i));
        lightings[i] = lighting;
    }
    object["lightings"] = lightings;
    if (!publication.poster.isEmpty())
        object["poster"] = files.add(QStringLiteral("poster.jpg"), publication.poster);
    object["bytes"] = publication.scene.size();
    return object;
}

QByteArray preload(const QString &url, const QByteArray &attributes)
{
    return "<link rel=\"preload\" href=\"" + url.toHtmlEscaped().toUtf8() + "\" " + attributes
        + ">\n";
}

} // namespace

QString qxPublishedPage::flaw()
{
    for (const char *name : {templateName, scriptName, styleName}) {
        if (viewerFile(name).isEmpty())
            return QStringLiteral("this program was built without the viewer for web pages");
    }
    return QString();
}

QList<qxPageFiles::File> qxPublishedPage::folder(const qxPublication &publication)
{
    qxPageFiles files(qxPageFiles::Beside);
    const QByteArray fetched = "as=\"fetch\" crossorigin=\"anonymous\"";
    QJsonObject object = withFiles(publication, files);
    const QString scene = files.add(QStringLiteral("scene.glb"), publication.scene);
    object["scene"] = scene;
    const QString data = files.add(QStringLiteral("published.json"),
                                   QJsonDocument(object).toJson(QJsonDocument::Compact));
    const QString script = files.add(QLatin1String(scriptName), viewerFile(scriptName));
    const QString style = files.add(QLatin1String(styleName), viewerFile(styleName));
    QByteArray links = preload(data, fetched + " id=\"published\"") + preload(scene, fetched);
    if (object.contains("poster"))
        links += preload(object["poster"].toString(), "as=\"image\"");
    QList<qxPageFiles::File> result = files.files();
    result += qxPageFiles::File(
        QLatin1String(templateName),
        pageOf(publication,
               {{"policy", policyOf("'self'", "'self'", "'self' ")},
                {"data", links},
                {"style", "<link rel=\"stylesheet\" href=\"" + style.toUtf8() + "\">"},
                {"script", "<script defer src=\"" + script.toUtf8() + "\"></script>"}}));
    return result;
}

QByteArray qxPublishedPage::single(const qxPublication &publication)
{
    qxPageFiles files(qxPageFiles::Within);
    QJsonObject object = withFiles(publication, files);
    object["scene"] = QStringLiteral("#scene");
    const QByteArray script = viewerFile(scriptName).replace("</script", "<\\/script");
    const QByteArray style = viewerFile(styleName);
    return pageOf(publication,
                  {{"policy", policyOf(sourceOf(script), sourceOf(style), "")},
                   {"data",
                    "<script type=\"application/json\" id=\"published\">" + jsonForHtml(object)
                        + "</script>\n<script type=\"application/octet-stream\" id=\"scene\">"
                        + publication.scene.toBase64() + "</script>"},
                   {"style", "<style>" + style + "</style>"},
                   {"script", "<script>" + script + "</script>"}});
}
