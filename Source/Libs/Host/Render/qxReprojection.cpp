#include "Render/qxReprojection.h"

#include "Render/qxTiles.h"

#include <chrono>
#include <cstring>
#include <numeric>

namespace {

const std::uint64_t _noPoint = ~std::uint64_t(0);
const float _farAway = std::numeric_limits<float>::infinity();
const float _towardsEye = 1e-12f; ///< brings overlays in front of all surfaces
/// The share of the drawn pixels that goes to all parts of the picture alike.
const float _regularShare = 0.7f;
const std::uint32_t _ageBits = 0xFFF; ///< of a depth's bits, which are much finer than needed
const int _usualBlock = 4; ///< width in pixels
const int _widestBlock = 8;
const int _band = 8; ///< rows
const std::size_t _chunk = 8192; ///< points
const int _oldest = 200; ///< age that is counted
const int _edgeAge = 3; ///< for each picture: edges look worse when they are old
const int _gapUrgency = 10000;
/// Of light, in parts of a byte; more is something else that is seen.
const float _mostChange = 48 * 256;

std::uint32_t bitsOf(float number)
{
    std::uint32_t bits;
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

float floatOf(std::uint32_t bits)
{
    float number;
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

void lower(std::atomic<std::uint64_t> &to, std::uint64_t value)
{
    std::uint64_t now = to.load(std::memory_order_relaxed);
    while (value < now && !to.compare_exchange_weak(now, value, std::memory_order_relaxed)) {}
}

double secondsSince(const std::chrono::steady_clock::time_point &start)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Calls `work` for all numbers below `count`, in bands of so many.
bool forAll(int count, int band, int threads, const std::function<void(int)> &work,
            const std::function<bool(int done)> &tell)
{
    const auto workOnBand = [&](int number) {
        for (int i = number * band; i < std::min(count, (number + 1) * band); ++i)
            work(i);
    };
    return qxForAllTiles((count + band - 1) / band, threads, workOnBand, tell);
}

} // namespace

/// Where a camera sees points, ready for very many of them.
class qxReprojection::Eye {
public:
    explicit Eye(const qxRenderCamera &camera)
        : m_isParallel(camera.isParallel()), m_place(camera.eye()), m_back(camera.back()),
          m_right(camera.right() * (1.0f / camera.pixelStep())),
          m_up(camera.up() * (1.0f / camera.pixelStep())), m_middle(camera.middle())
    {
    }

    /// False for what is not in front of the eye. The far of a parallel camera is nowhere.
    bool sees(const Point &point, osg::Vec2f &at, float &depth) const
    {
        const bool isFar = point.kind == Point::Far;
        const osg::Vec3f way = isFar ? point.place : point.place - m_place;
        depth = -way.dot(m_back);
        if (!(depth > 0.0f) || (isFar && m_isParallel))
            return false;
        const float share = m_isParallel ? 1.0f : 1.0f / depth;
        at =
            osg::Vec2f(way.dot(m_right) * share + m_middle[0], way.dot(m_up) * share + m_middle[1]);
        depth = isFar ? _farAway : point.kind == Point::Front ? depth * _towardsEye : depth;
        return true;
    }

private:
    bool m_isParallel;
    osg::Vec3f m_place;
    osg::Vec3f m_back;
    osg::Vec3f m_right; ///< pixels for each unit of length, at distance 1
    osg::Vec3f m_up;
    osg::Vec2f m_middle;
};

void qxReprojection::forget()
{
    m_points.clear();
    m_shadows.clear();
}

void qxReprojection::forgetOthers(std::uint64_t revision)
{
    if (revision != m_revision)
        forget();
    m_revision = revision;
}

qxPicture qxReprojection::paint(qxPainter &painter, const qxPictureSettings &settings, int drawn,
                                const qxPicture::Progress &progress)
{
    const auto start = std::chrono::steady_clock::now();
    begin(settings);
    if (drawn >= m_width * m_height) // as any quick picture, whatever has changed unnoticed
        m_shadows.clear();
    painter.prepareSpots(m_shadows);
    const int threads = settings.threads;
    const auto silent = [](int) { return true; };
    if (!m_points.empty()) {
        const Eye eye(painter.camera());
        forAll(
            m_height, _band, threads, [&](int y) { project(eye, y); }, silent);
        forAll(
            m_height, _band, threads, [this](int y) { gather(y); }, silent);
    }
    plan(drawn);

    const auto drawStart = std::chrono::steady_clock::now();
    const auto tell = [&](int done) { return !progress || progress(done, m_rows); };
    const auto drawBlocks = [&](int row) { drawRow(painter, row); };
    if (!tell(0) || !forAll(m_rows, 1, threads, drawBlocks, tell)) {
        forget();
        return qxPicture();
    }
    m_drawTime = secondsSince(drawStart);
    m_drawn = m_count;

    qxPicture picture;
    picture.width = m_width;
    picture.height = m_height;
    picture.rgba.resize(m_next.size() * 4);
    m_points.resize(m_next.size());
    const auto finishRow = [&](int y) { finish(painter, y, &picture.rgba[placeOf(0, y) * 4]); };
    forAll(m_height, _band, threads, finishRow, silent);
    picture.content = painter.content();
    ++m_number;
    m_otherTime = secondsSince(start) - m_drawTime;
    return picture;
}

void qxReprojection::begin(const qxPictureSettings &settings)
{
    const std::size_t count = std::size_t(settings.width) * std::size_t(settings.height);
    if (!m_nearest || m_nearest->size() != count)
        m_nearest = std::make_unique<Nearest>(count);
    m_width = settings.width;
    m_height = settings.height;
    m_next.resize(count);
    if (m_points.empty())
        m_next.assign(count, Point());
    for (std::atomic<std::uint64_t> &nearest : *m_nearest)
        nearest.store(_noPoint, std::memory_order_relaxed);
    m_gaps = m_points.empty() ? int(count) : 0;
    m_count = 0;
}

/// Which pixels are drawn, once it is known how many gaps there are.
void qxReprojection::plan(int drawn)
{
    const int pixels = m_width * m_height;
    const bool knowsNothing = m_gaps == pixels;
    const float wanted = float(std::clamp(drawn, 1, pixels)) / float(pixels);
    const float share = wanted < 1.0f && !knowsNothing ? wanted * _regularShare : wanted;
    const int narrowest = int(std::ceil(std::sqrt(1.0f / share)));
    m_blockWidth = std::clamp(narrowest, _usualBlock, _widestBlock);
    const int cells = m_blockWidth * m_blockWidth;
    m_perBlock = std::clamp(int(share * float(cells)), 1, cells);
    const float left = (wanted - float(m_perBlock) / float(cells)) * float(pixels);
    m_perGap = knowsNothing ? 0.0f : std::clamp(left / float(m_gaps + 1), 0.0f, 1.0f);
    m_across = (m_width + m_blockWidth - 1) / m_blockWidth;
    m_rows = (m_height + m_blockWidth - 1) / m_blockWidth;
    m_blocks.assign(std::size_t(m_across) * std::size_t(m_rows), Block());

    // Steps near the golden section visit all pixels in an even order, another one first each time.
    int step = int(0.618f * float(cells));
    while (std::gcd(cells, step) > 1)
        ++step;
    m_order.resize(std::size_t(cells));
    for (int i = 0; i < cells; ++i)
        m_order[std::size_t((i + m_number) * step % cells)] = i;
}

/// Moves points of the picture before, which may have had another size. Of points of one surface
/// the one that was drawn last counts as the nearest.
void qxReprojection::project(const Eye &eye, int chunk)
{
    const std::size_t first = std::size_t(chunk) * _chunk;
    const std::size_t end = std::min(m_points.size(), first + _chunk);
    for (std::size_t place = first; place < end; ++place) {
        const Point &point = m_points[place];
        osg::Vec2f at;
        float depth;
        if (point.kind == Point::None || !eye.sees(point, at, depth)
            || !(at[0] >= 0.0f && at[0] < float(m_width))
            || !(at[1] >= 0.0f && at[1] < float(m_height)))
            continue;
        const std::uint32_t sortable = (bitsOf(depth) & ~_ageBits) | point.age;
        lower((*m_nearest)[placeOf(int(at[0]), int(at[1]))],
              std::uint64_t(sortable) << 32 | std::uint64_t(place));
    }
}

/// Infinite where nothing is known, too.
float qxReprojection::depthAt(std::size_t place) const
{
    const std::uint64_t nearest = (*m_nearest)[place].load(std::memory_order_relaxed);
    return nearest == _noPoint ? _farAway : floatOf(std::uint32_t(nearest >> 32) & ~_ageBits);
}

/// Whether something beside it is of another surface, or unknown.
bool qxReprojection::isEdge(int x, int y, std::size_t place, float depth) const
{
    if (x == 0 || y == 0 || x + 1 == m_width || y + 1 == m_height)
        return false;
    const std::size_t row = std::size_t(m_width);
    return !isSame(depthAt(place - 1), depth) || !isSame(depthAt(place + 1), depth)
        || !isSame(depthAt(place - row), depth) || !isSame(depthAt(place + row), depth);
}

/// Whether it lies in a gap between nearer points, or alone in front of others.
bool qxReprojection::isOutlier(std::size_t place, float depth) const
{
    const std::size_t width = std::size_t(m_width);
    int nearer = 0;
    int farther = 0;
    for (const std::size_t row : {place - width, place, place + width}) {
        for (const std::size_t beside : {row - 1, row, row + 1}) {
            nearer += isNearer(depthAt(beside), depth);
            farther += isNearer(depth, depthAt(beside));
        }
    }
    return nearer >= 4 || farther >= 8;
}

void qxReprojection::gather(int y)
{
    int gaps = 0;
    std::size_t place = placeOf(0, y);
    for (int x = 0; x < m_width; ++x, ++place) {
        const std::uint64_t nearest = (*m_nearest)[place].load(std::memory_order_relaxed);
        Point &point = m_next[place];
        point.kind = Point::None;
        if (nearest != _noPoint) {
            const float depth = floatOf(std::uint32_t(nearest >> 32) & ~_ageBits);
            const bool isAtEdge = isEdge(x, y, place, depth);
            if (!isAtEdge || !isOutlier(place, depth)) {
                point = m_points[std::size_t(nearest & 0xFFFFFFFFu)];
                point.depth = depth;
                const int age = point.age + (isAtEdge ? _edgeAge : 1);
                point.age = std::uint8_t(std::min(age, _oldest));
            }
        }
        gaps += point.kind == Point::None;
    }
    m_gaps += gaps;
}

void qxReprojection::drawRow(qxPainter &painter, int row)
{
    int count = 0;
    for (int column = 0; column < m_across; ++column) {
        Block &block = m_blocks[std::size_t(row) * std::size_t(m_across) + std::size_t(column)];
        count += drawBlock(painter, block, column * m_blockWidth, row * m_blockWidth);
    }
    m_count += count;
}

/// Says how many pixels were drawn.
int qxReprojection::drawBlock(qxPainter &painter, Block &block, int left, int low)
{
    int urgencies[_widestBlock * _widestBlock];
    const int cells = m_blockWidth * m_blockWidth;
    int gaps = 0;
    for (int cell = 0; cell < cells; ++cell) {
        urgencies[cell] = urgency(left + cell % m_blockWidth, low + cell / m_blockWidth, cell);
        gaps += urgencies[cell] >= _gapUrgency * cells;
    }
    const int wanted = m_perBlock + int(float(gaps) * m_perGap + 0.5f);
    int count = 0;
    for (; count < wanted; ++count) {
        int *const most = std::max_element(urgencies, urgencies + cells);
        if (*most < 0)
            break;
        *most = -1;
        const int cell = int(most - urgencies);
        drawPixel(painter, left + cell % m_blockWidth, low + cell / m_blockWidth, block);
    }
    return count;
}

/// Below 0 outside of the picture.
int qxReprojection::urgency(int x, int y, int cell) const
{
    if (x >= m_width || y >= m_height)
        return -1;
    const Point &point = m_next[placeOf(x, y)];
    const int reason = point.kind == Point::None ? _gapUrgency : point.age;
    return reason * int(m_order.size()) + m_order[std::size_t(cell)];
}

void qxReprojection::drawPixel(qxPainter &painter, int x, int y, Block &block)
{
    const qxPainter::Spot spot = painter.spot(x, y);
    const qxRay ray = painter.camera().ray(float(x) + 0.5f, float(y) + 0.5f);
    Point drawn;
    drawn.kind = !std::isfinite(spot.distance) ? Point::Far
        : spot.isInFront                       ? Point::Front
                                               : Point::Surface;
    const bool isFar = drawn.kind == Point::Far;
    drawn.place = isFar ? ray.direction : ray.at(spot.distance);
    const float depth = -spot.distance * ray.direction.dot(painter.camera().back());
    drawn.depth = isFar ? _farAway : spot.isInFront ? depth * _towardsEye : depth;
    drawn.setLight(spot.colour);
    Point &point = m_next[placeOf(x, y)];
    if (!block.point) {
        block.point = &point;
        block.x = x;
        block.y = y;
        bool isOther = point.kind != drawn.kind || !isSame(point.depth, drawn.depth);
        for (int i = 0; i < 4; ++i) {
            block.change[i] = float(drawn.rgba[i]) - float(point.rgba[i]);
            isOther = isOther || std::fabs(block.change[i]) > _mostChange;
        }
        if (isOther)
            std::fill_n(block.change, 4, 0.0f);
    }
    point = drawn;
}
