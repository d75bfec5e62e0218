// Makes the delivered database file.
//   build_data SCHEMA.sql BREEDS.csv OUTPUT

#include "data_builder.h"

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>

namespace {

std::string ReadWholeFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("can't read " + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

int main(int argc, char** argv) try {
    if (argc != 4) {
        std::cerr << "usage: build_data SCHEMA.sql BREEDS.csv OUTPUT\n";
        return 2;
    }
    // A file is either whole or not there.
    const std::filesystem::path output = argv[3];
    const std::filesystem::path unfinished = output.string() + ".new";
    std::filesystem::remove(unfinished);
    lorvo::BuildDeliveredDatabase(unfinished.string(), ReadWholeFile(argv[1]),
                                  ReadWholeFile(argv[2]));
    std::filesystem::rename(unfinished, output);
    return 0;
} catch (const std::exception& error) {
    std::cerr << "build_data: " << error.what() << '\n';
    return 1;
}
