// Drives a fuzz target without libFuzzer: replays its first inputs, then random mutations of them until the time is up.
// Takes those of libFuzzer's options that scripts/fuzz.sh uses. The input that ends the program is left in a file.

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;
using Bytes = std::vector<std::uint8_t>;

/// What the handlers of signals need; they are given nothing.
struct Running {
    const Bytes* input = nullptr;
    std::string artifact;
};
// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): a signal's handler reaches nothing else.
Running running;

/// The sanitizers end a program by abort() too, when they are told to (abort_on_error).
void onAbort(int)
{
    if (running.input == nullptr)
        return;
    const int file = open(running.artifact.c_str(), O_WRONLY | O_CREAT | O_TRUNC, S_IRUSR | S_IWUSR);
    if (file < 0)
        return;
    static_cast<void>(write(file, running.input->data(), running.input->size()) > 0);
    close(file);
    constexpr std::string_view note = "The input that ended the program is in ";
    static_cast<void>(write(STDERR_FILENO, note.data(), note.size()) > 0);
    static_cast<void>(write(STDERR_FILENO, running.artifact.data(), running.artifact.size()) > 0);
    static_cast<void>(write(STDERR_FILENO, "\n", 1) > 0);
}

void onAlarm(int)
{
    constexpr std::string_view note = "One input takes too long.\n";
    static_cast<void>(write(STDERR_FILENO, note.data(), note.size()) > 0);
    std::abort();
}

struct Options {
    std::chrono::seconds time{10};
    unsigned longest = 25;
    std::string artifactPrefix;
    std::vector<fs::path> inputs;
    bool onlyFiles = true;
};

Options optionsOf(int count, char** list)
{
    Options options;
    for (int index = 1; index < count; ++index) {
        const std::string_view word = list[index];
        const std::string value{word.substr(std::min(word.find('=') + 1, word.size()))};
        if (word.starts_with("-max_total_time="))
            options.time = std::chrono::seconds{std::stoi(value)};
        else if (word.starts_with("-timeout="))
            options.longest = static_cast<unsigned>(std::stoi(value));
        else if (word.starts_with("-artifact_prefix="))
            options.artifactPrefix = value;
        else if (fs::is_directory(word)) {
            options.onlyFiles = false;
            for (const auto& entry : fs::directory_iterator{word})
                options.inputs.push_back(entry.path());
        } else if (!word.starts_with('-'))
            options.inputs.emplace_back(word);
    }
    return options;
}

Bytes contentsOf(const fs::path& path)
{
    std::ifstream file{path, std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, {}};
}

void runOne(const Bytes& input, unsigned longest)
{
    running.input = &input;
    alarm(longest);
    LLVMFuzzerTestOneInput(input.data(), input.size());
    alarm(0);
}

/// Makes new inputs out of known ones.
class Mutator {
public:
    Mutator(std::vector<Bytes> corpus, std::uint64_t seed)
        : corpus_(std::move(corpus))
        , random_(seed)
    {
        if (corpus_.empty())
            corpus_.emplace_back();
    }

    [[nodiscard]] Bytes next()
    {
        constexpr std::size_t mostChanges = 8;
        Bytes input = corpus_[below(corpus_.size())];
        for (std::size_t changes = 1 + below(mostChanges); changes > 0; --changes)
            change(input);
        return input;
    }

private:
    [[nodiscard]] std::size_t below(std::size_t limit) { return random_() % limit; }

    /// A stretch of the bytes, mostly a short one.
    [[nodiscard]] std::pair<std::ptrdiff_t, std::ptrdiff_t> stretch(const Bytes& bytes)
    {
        constexpr std::size_t usualLength = 64;
        const std::size_t first = below(bytes.size() + 1);
        const std::size_t most = bytes.size() - first;
        const std::size_t length = below((below(usualLength) == 0 ? most : std::min(most, usualLength)) + 1);
        return {static_cast<std::ptrdiff_t>(first), static_cast<std::ptrdiff_t>(first + length)};
    }

    void change(Bytes& input)
    {
        constexpr std::size_t kinds = 6;
        constexpr std::array<std::uint8_t, 12> telling{0, 1, 9, 10, 13, 32, '"', '#', ';', 0x7F, 0xD8, 0xFF};
        const auto [first, last] = stretch(input);
        const auto at = input.begin() + first;
        switch (below(kinds)) {
        case 0:
            if (at != input.end())
                *at ^= static_cast<std::uint8_t>(1U << below(8));
            break;
        case 1:
            input.insert(at, telling[below(telling.size())]);
            break;
        case 2:
            input.insert(at, static_cast<std::uint8_t>('0' + below(10)));
            break;
        case 3:
            input.erase(at, input.begin() + last);
            break;
        case 4: {
            const Bytes copy{at, input.begin() + last};
            input.insert(input.begin() + stretch(input).first, copy.begin(), copy.end());
            break;
        }
        default: {
            const Bytes& other = corpus_[below(corpus_.size())];
            const auto [from, to] = stretch(other);
            const Bytes copy{other.begin() + from, other.begin() + to};
            input.insert(at, copy.begin(), copy.end());
        }
        }
    }

    std::vector<Bytes> corpus_;
    std::mt19937_64 random_;
};

} // namespace

int main(int argumentCount, char** argumentList)
{
    const Options options = optionsOf(argumentCount, argumentList);
    running.artifact = options.artifactPrefix + "crash-" + std::to_string(getpid());
    std::signal(SIGABRT, onAbort);
    std::signal(SIGALRM, onAlarm);
    std::vector<Bytes> corpus;
    for (const fs::path& path : options.inputs)
        runOne(corpus.emplace_back(contentsOf(path)), options.longest);
    std::uint64_t runs = corpus.size();
    const std::uint64_t seed = std::random_device{}();
    Mutator mutator{std::move(corpus), seed};
    const auto end = std::chrono::steady_clock::now() + options.time;
    for (; !options.onlyFiles && std::chrono::steady_clock::now() < end; ++runs)
        runOne(mutator.next(), options.longest);
    std::cout << runs << " inputs, seed " << seed << '\n';
    return 0;
}
