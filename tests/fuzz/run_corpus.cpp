// Runs a fuzz target without the fuzzer: over the files of its corpus and some thousand inputs that
// chance makes of them. Usage: PROGRAM FOLDER [how many]

#include "fuzz/fuzz_target.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace {

std::vector<std::string> ReadCorpus(const char* folder) {
    std::vector<std::string> inputs;
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
        std::ifstream stream(file.path(), std::ios::binary);
        inputs.emplace_back(std::istreambuf_iterator<char>(stream),
                            std::istreambuf_iterator<char>());
    }
    return inputs;
}

void Run(const std::string& input) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
}

std::string Mutated(std::string input, const std::vector<std::string>& corpus,
                    std::mt19937& chance) {
    for (unsigned changes = 1 + chance() % 4; changes > 0; --changes) {
        const std::size_t at = chance() % (input.size() + 1);
        const std::string& other = corpus[chance() % corpus.size()];
        const std::size_t from = chance() % (other.size() + 1);
        switch (chance() % 4) {
        case 0:
            input.insert(at, 1, static_cast<char>(chance()));
            break;
        case 1:
            input.erase(at, chance() % 8);
            break;
        case 2:
            input.insert(at, other.substr(from, chance() % 32));
            break;
        default:
            if (at < input.size())
                input[at] = static_cast<char>(chance());
        }
    }
    return input;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2)
        return EXIT_FAILURE;
    const std::vector<std::string> corpus = ReadCorpus(argv[1]);
    if (corpus.empty())
        return EXIT_FAILURE;
    for (const std::string& input : corpus)
        Run(input);
    const long inputs = argc > 2 ? std::atol(argv[2]) : 5000;
    std::mt19937 chance(1);
    for (long i = 0; i < inputs; ++i)
        Run(Mutated(corpus[chance() % corpus.size()], corpus, chance));
    std::cout << corpus.size() << " files, " << inputs << " inputs made of them\n";
}
