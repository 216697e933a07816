// Runs a target without libFuzzer: once for each file, and for some changes of it that are the same
// each time.

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size);
extern "C" std::size_t LLVMFuzzerMutate(unsigned char *data, std::size_t size, std::size_t most);
extern "C" __attribute__((weak)) std::size_t
LLVMFuzzerCustomMutator(unsigned char *data, std::size_t size, std::size_t most, unsigned seed);

namespace {

constexpr unsigned ChangesPerSeed = 20;
constexpr std::size_t MostBytes = 8192;

void runFile(const std::filesystem::path &path)
{
    std::fprintf(stderr, "Input %s\n", path.c_str());
    std::ifstream in(path, std::ios::binary);
    const std::vector<unsigned char> seed(std::istreambuf_iterator<char>(in), {});
    LLVMFuzzerTestOneInput(seed.data(), seed.size());
    for (unsigned i = 1; i <= ChangesPerSeed && seed.size() < MostBytes; ++i) {
        std::vector<unsigned char> changed = seed;
        changed.resize(MostBytes);
        changed.resize(LLVMFuzzerCustomMutator
                           ? LLVMFuzzerCustomMutator(changed.data(), seed.size(), MostBytes, i)
                           : LLVMFuzzerMutate(changed.data(), seed.size(), MostBytes));
        LLVMFuzzerTestOneInput(changed.data(), changed.size());
    }
}

std::vector<std::filesystem::path> filesAt(const char *place)
{
    if (!std::filesystem::is_directory(place))
        return {place};
    const std::filesystem::directory_iterator all(place);
    std::vector<std::filesystem::path> files(begin(all), end(all));
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace

/// What libFuzzer has beside it, in small: a byte comes, goes or changes.
extern "C" std::size_t LLVMFuzzerMutate(unsigned char *data, std::size_t size, std::size_t most)
{
    static std::mt19937 random(1);
    std::vector<unsigned char> bytes(data, data + size);
    const auto at = bytes.begin() + long(random() % (size + 1));
    const unsigned kind = random() % 3;
    if (kind == 0 && size < most)
        bytes.insert(at, static_cast<unsigned char>(random()));
    else if (kind == 1 && at != bytes.end())
        bytes.erase(at);
    else if (at != bytes.end())
        *at = static_cast<unsigned char>(random());
    std::copy(bytes.begin(), bytes.end(), data);
    return bytes.size();
}

int main(int count, char **arguments)
{
    if (count != 2) {
        std::fprintf(stderr, "Usage: %s FILE|FOLDER\n", arguments[0]);
        return 2;
    }
    const std::vector<std::filesystem::path> files = filesAt(arguments[1]);
    for (const std::filesystem::path &path : files)
        runFile(path);
    return files.empty() ? 1 : 0;
}
