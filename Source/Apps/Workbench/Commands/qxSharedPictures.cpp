#include "qxSharedPictures.h"

#include "qxVariantSet.h"

#include "Report/qxProgress.h"
#include "Session/qxInterrupt.h"
#include "Session/qxShardCosts.h"
#include "qxCommand.h"

#include <QHash>

#include <algorithm>

namespace {

constexpr int MostSamples = 64;
constexpr int SampleShare = 8; ///< of a side

double lap(QElapsedTimer &timer)
{
    const double seconds = double(timer.nsecsElapsed()) / 1e9;
    timer.start();
    return seconds;
}

/// Visits sets of which no pictures are made that somebody will see.
int look(const QStringList &names, const qxSetPreviews::Work &work)
{
    qxProgress progress(names.size());
    const auto begin = [&progress](const QString &name) {
        if (qxInterrupt::isAsked())
            return false;
        progress.begin(name);
        return true;
    };
    return qxSetPreviews::visit(names, begin, work);
}

} // namespace

qxSharedPictures::Product qxSharedPictures::previews()
{
    const qxPictureSettings made = qxSetPreviews::settings();
    return {{made.width, made.height},
            qxSetPreviews::previewFingerprint,
            qxSetPreviews::preview,
            {},
            true};
}

int qxSharedPictures::begin(const Product &product)
{
    m_product = product;
    return m_work.begin({product.size, product.isStamped});
}

int qxSharedPictures::makeParts(const QStringList &names)
{
    m_work.endLoading();
    if (m_work.needsPlan()) {
        const int code = makePlan(names);
        if (code != Success)
            return code;
    }
    return m_work.options().task == qxShardOptions::Plan ? m_work.tellPlan() : makeShard();
}

int qxSharedPictures::makePlan(const QStringList &names)
{
    QVector<double> selecting;
    bool isDone = false;
    QVector<qxShardPlan::Item> items = survey(names, selecting, isDone);
    if (isDone)
        measure(items, selecting);
    if (!isDone || qxInterrupt::isAsked())
        return qxCommands::endedEarly(QStringLiteral("no plan was written"),
                                      QStringLiteral("a picture cannot be made"));
    return m_work.share(items);
}

/// What all the sets need, and how long that took for each.
QVector<qxShardPlan::Item> qxSharedPictures::survey(const QStringList &names,
                                                    QVector<double> &selecting, bool &isDone)
{
    QVector<qxShardPlan::Item> items;
    QElapsedTimer timer;
    timer.start();
    const int done = look(names, [&](qxVariantSet &set) {
        if (!m_product.wants(set))
            return true;
        const QByteArray product = m_product.fingerprint();
        items.append({set.name, product});
        selecting += lap(timer);
        return !product.isEmpty();
    });
    isDone = done == names.size();
    return items;
}

void qxSharedPictures::measure(QVector<qxShardPlan::Item> &items, const QVector<double> &selecting)
{
    const qxShardCosts costs(m_work.folder().path(), m_work.command());
    QVector<double> seconds;
    for (const qxShardPlan::Item &item : qAsConst(items))
        seconds += costs.seconds(item.product, item.name);
    const bool isKnown =
        std::any_of(seconds.begin(), seconds.end(), [](double each) { return each >= 0; });
    if (!isKnown)
        sample(items, seconds);
    qxShardCosts::fill(seconds);
    for (int place = 0; place < items.size(); ++place)
        items[place].seconds = seconds[place] + (isKnown ? 0 : selecting[place]);
}

/// The second picture of a set takes what its pixels take, the first one what preparing the scene
/// takes, too.
void qxSharedPictures::sample(const QVector<qxShardPlan::Item> &items, QVector<double> &seconds)
{
    QStringList names;
    QHash<QString, int> places;
    for (int place = 0; place < items.size(); ++place) {
        if (!m_work.folder().holds(items[place].product)) {
            names += items[place].name;
            places[items[place].name] = place;
        }
    }
    const int step = (names.size() + MostSamples - 1) / MostSamples;
    QStringList chosen;
    for (int place = 0; place < names.size(); place += step)
        chosen += names[place];
    const QSize size = (m_product.size / SampleShare).expandedTo(QSize(1, 1));
    const double share = double(m_product.size.width()) * m_product.size.height()
        / (double(size.width()) * size.height());
    look(chosen, [&](qxVariantSet &set) {
        m_product.fingerprint();
        QElapsedTimer timer;
        timer.start();
        qxSetPreviews::render(size);
        const double first = lap(timer);
        const bool isDone = !qxSetPreviews::render(size).isEmpty();
        const double second = lap(timer);
        seconds[places[set.name]] = std::max(first - second, 0.0) + second * share;
        return isDone;
    });
}

int qxSharedPictures::makeShard()
{
    QStringList names;
    QHash<QString, QByteArray> products;
    const QVector<qxShardPlan::Item> items = m_work.itemsOfShard();
    for (const qxShardPlan::Item &item : items) {
        if (m_work.folder().holds(item.product))
            continue;
        names += item.name;
        products[item.name] = item.product;
    }
    int made = 0;
    qxShardCostLog costs(m_work.folder().path(), m_work.command(), m_work.loadSeconds());
    QElapsedTimer timer;
    timer.start();
    QString failure;
    const int done = qxSetPreviews::visit(names, [&](qxVariantSet &set) {
        const QString name = set.name;
        const QByteArray product = products[name];
        if (m_product.fingerprint() != product) {
            failure =
                QStringLiteral("\"%1\" shows something else than it did for the plan").arg(name);
            return false;
        }
        const QByteArray png = m_product.make();
        if (png.isEmpty() || !m_work.folder().write(product, png))
            return false;
        costs.add(name, product, lap(timer));
        ++made;
        return true;
    });
    if (done == names.size())
        return m_work.tellShard(made, items.size() - made);
    return qxCommands::endedEarly(QStringLiteral("%1 of %2 pictures are in %3")
                                      .arg(items.size() - names.size() + made)
                                      .arg(items.size())
                                      .arg(m_work.folder().path()),
                                  failure);
}

int qxSharedPictures::visit(const QStringList &names, const qxSetPreviews::Take &take)
{
    if (task() == qxShardOptions::Gather)
        return this->take(names, take);
    const qxSetPreviews::Work work = qxSetPreviews::each(m_product.make, take);
    return qxSetPreviews::visit(
        names, [&](qxVariantSet &set) { return !m_product.wants(set) || work(set); });
}

/// A set of which there is no item was gone when its turn came.
int qxSharedPictures::take(const QStringList &names, const qxSetPreviews::Take &take)
{
    const QVector<qxShardPlan::Item> &items = m_work.plan().items;
    int taken = 0;
    qxProgress progress(items.size());
    for (const qxShardPlan::Item &item : items) {
        if (qxInterrupt::isAsked())
            return taken;
        progress.begin(item.name);
        const QByteArray png = m_work.folder().read(item.product);
        if (png.isEmpty())
            return -1;
        if (!take(item.name, png))
            return taken;
        ++taken;
    }
    return names.size();
}

QMap<QString, QString> qxSharedPictures::files() const
{
    QMap<QString, QString> files;
    if (task() != qxShardOptions::Gather)
        return files;
    for (const qxShardPlan::Item &item : m_work.plan().items)
        files[item.name] = m_work.folder().productPath(item.product);
    return files;
}

int qxSharedPictures::codeAfterScripts() const
{
    if (m_work.plan().scriptsFailed)
        return qxCommands::fail(
            QStringLiteral("scripts of sets failed, as is told where the plan was made"));
    return qxCommands::codeAfterScripts();
}
