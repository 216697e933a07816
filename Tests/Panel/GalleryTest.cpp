#include "DockFixture.h"
#include "Sets/qxGallery.h"
#include "Sets/qxSetsModel.h"

/// The dock as a gallery, wide enough for three columns of tiles.
class GalleryTest : public DockFixture {
protected:
    GalleryTest()
    {
        addGroup("Many", {"1", "2", "3", "4", "5"});
        announce();
        showGallery();
        sets.setFloating(true);
        fit(3 * gallery().tileWidth());
    }

    qxGallery &gallery() { return *sets.view()->gallery(); }
    QAbstractItemModel &model() { return *gallery().model(); }
    /// Makes the dock so wide that the tiles have about that width, and so high that all are seen.
    void fit(int width)
    {
        sets.resize(width + sets.width() - gallery().maximumViewportSize().width(), 2000);
        settle();
        gallery().doItemsLayout();
    }
    QRect rect(const QString &text)
    {
        const QModelIndex first = model().index(0, 0);
        return gallery().visualRect(model().match(first, Qt::DisplayRole, text).value(0));
    }
    QString current() { return gallery().currentIndex().data().toString(); }
    static QByteArray picture(const QSize &size)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        return buffer.data();
    }
};

TEST_F(GalleryTest, TilesFillTheWidthWhateverItAndTheirSizeAre)
{
    for (const int wish : {280, 333, 480, 901}) {
        for (const int tile : {0, 150, 260, 1000}) {
            SCOPED_TRACE(testing::Message() << wish << " " << tile);
            gallery().setTileWidth(tile);
            fit(wish);
            const int width = gallery().maximumViewportSize().width();
            const int wanted = gallery().tileWidth();
            const int found = rect("1").width();
            const int columns = std::max(1, int(std::lround(double(width) / wanted)));
            EXPECT_LE(width - columns * found, columns) << "no gap";
            EXPECT_EQ(rect("1").left(), 0);
            EXPECT_EQ(rect("2").left(), columns == 1 ? 0 : found);
            EXPECT_EQ(rect("2").size(), rect("1").size());
            EXPECT_GT(rect("Many").width(), width - columns - 1) << "a heading for all of them";
            EXPECT_EQ(rect("Many").bottom() + 1, rect("1").top());
        }
    }
    EXPECT_GT(gallery().height(), sets.height() * 6 / 10) << "more room than the form";
    const int before = gallery().tileWidth();
    QWheelEvent wheel(QPointF(9, 9), QPointF(), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(gallery().viewport(), &wheel);
    EXPECT_LT(gallery().tileWidth(), before);
    auto &slider = *sets.findChild<QWidget *>("galleryBar")->findChild<QSlider *>();
    EXPECT_EQ(slider.value(), gallery().tileWidth());
    slider.setValue(slider.minimum());
    EXPECT_EQ(gallery().tileWidth(), gallery().leastTileWidth());
}

TEST_F(GalleryTest, ArrowsLeadOverTilesAndHeadingsAsTheyStand)
{
    sets.view()->showSet("Red");
    const QList<QPair<Qt::Key, QString>> way = {
        {Qt::Key_Right, "Blue"},       {Qt::Key_Down, "Inside"},    {Qt::Key_Down, "Leather"},
        {Qt::Key_Down, "Many"},        {Qt::Key_Down, "2"},         {Qt::Key_Down, "5"},
        {Qt::Key_Down, "In No Group"}, {Qt::Key_Up, "5"},           {Qt::Key_Up, "2"},
        {Qt::Key_Right, "3"},          {Qt::Key_Right, "4"},        {Qt::Key_Left, "3"},
        {Qt::Key_Up, "Many"},          {Qt::Key_Left, "Many"},      {Qt::Key_Right, "Many"},
        {Qt::Key_Right, "1"},          {Qt::Key_PageUp, "Outside"}, {Qt::Key_Up, "Outside"},
        {Qt::Key_End, "Alone"},        {Qt::Key_Right, "Alone"}};
    for (int step = 0; step < way.size(); ++step) {
        press(gallery(), way[step].first);
        ASSERT_EQ(current(), way[step].second) << "step " << step;
        EXPECT_EQ(rect("1").isValid(), step != 13) << "closed by Left, opened by Right";
    }
    gallery().setMaximumHeight(2 * rect("1").height());
    settle();
    press(gallery(), Qt::Key_PageUp);
    EXPECT_NE(current(), "Outside") << "a page is what is seen";
}

TEST_F(GalleryTest, AHeadingClosesItsSectionInTheListAsWell)
{
    sets.view()->showSet("2");
    const auto clickArrow = [this] {
        QTest::mouseClick(gallery().viewport(), Qt::LeftButton, Qt::NoModifier,
                          rect("Many").topLeft() + QPoint(8, 8));
        settle();
    };
    const QModelIndex group = list().model()->index(2, 0);
    ASSERT_EQ(group.data(), "Many");
    clickArrow();
    EXPECT_FALSE(rect("1").isValid() || list().isExpanded(group));
    EXPECT_EQ(current(), "Many") << "what the cursor was on is hidden";
    clickArrow();
    EXPECT_TRUE(rect("1").isValid() && list().isExpanded(group));
    list().collapse(group);
    EXPECT_FALSE(rect("1").isValid());
    sets.view()->showSet("4");
    EXPECT_EQ(current(), "4") << "a set that is looked for opens it";
}

TEST_F(GalleryTest, PreviewsKeepTheirShapeAndTheirSetTellsWhatItsTileMarks)
{
    set("1").setPreview(picture(QSize(100, 400)));
    set("2").setPreview(picture(QSize(264, 256)));
    set("3").setPreview("no picture");
    giveKey(set("3"), "F7");
    announce();
    sets.view()->showSet("3");
    const QImage shown = gallery().viewport()->grab().toImage();
    const auto isRed = [&](const char *name, double across) {
        const QRect tile = rect(name);
        const QPoint place(tile.left() + int(tile.width() * across),
                           tile.top() + tile.height() / 3);
        return shown.pixelColor(place) == QColor(Qt::red);
    };
    EXPECT_TRUE(isRed("1", 0.5) && isRed("2", 0.5) && isRed("2", 0.1));
    EXPECT_FALSE(isRed("1", 0.1) || isRed("3", 0.5));
    const auto spoken = [this](const char *name) {
        const QModelIndex first = model().index(0, 0);
        return model()
            .match(first, Qt::DisplayRole, name)
            .value(0)
            .data(Qt::AccessibleTextRole)
            .toString();
    };
    EXPECT_EQ(spoken("3"), "3, key F7, empty");
    EXPECT_EQ(spoken("Red"), "Red, shown now");
    EXPECT_EQ(spoken("Many"), "Group Many, 5 sets");
}

TEST_F(GalleryTest, TheBarAsksForThePreviewsThatAreMissingOrStale)
{
    auto &make = *sets.findChild<QWidget *>("galleryBar")->findChild<QPushButton *>();
    const auto wanted = [&] {
        QTest::qWait(50); // They are counted while nothing else is to be done.
        QSignalSpy spy(&sets, &qxVariantSetsDock::previewsWanted);
        make.click();
        return spy.empty() ? QString() : spy.first().first().toStringList().join(',');
    };
    EXPECT_EQ(wanted(), "Red,Blue,Leather,1,2,3,4,5,Alone");
    QMap<QString, QByteArray> previews;
    for (const qxVariantSet *each : qxVariants::_variantSets)
        previews[each->name] = picture(QSize(8, 8));
    sets.setPreviews(previews, 1);
    EXPECT_FALSE(wanted().isEmpty() && make.isVisible());
    const auto edit = [this](const std::function<void()> &change) {
        change();
        announce();
    };
    edit([this] { set("Red").comment = "A comment is not seen"; });
    EXPECT_EQ(wanted(), "");
    edit([this] { set("Red").findNodeVariant("Wheels")->state = "Alloy"; });
    EXPECT_EQ(wanted(), "") << "as blue is, in a picture that is the same";
    edit([this] { set("Red").findNodeVariant("Wheels")->state = "!None"; });
    EXPECT_EQ(wanted(), "Red");
    edit([this] { set("Red").findNodeVariant("Wheels")->state = "Steel"; });
    EXPECT_EQ(wanted(), "");
    edit([] { qxVariants::findNodeVariant("Wheels")->add("Wood", QString()); });
    EXPECT_EQ(wanted(), "Red,Blue") << "what a set refers to is another variant now";
    undo();
    EXPECT_EQ(wanted(), "Red,Blue,Leather,1,2,3,4,5,Alone");
}
