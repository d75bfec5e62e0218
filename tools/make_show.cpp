// Makes a database with a made-up show.
//   make_show [--size club|national|world] [--seed N] [--numbers none|some|all]
//             [--from DELIVERED] --out FILE

#include "show/show_generator.h"
#include "store/data_module.h"

#include <QFile>
#include <exception>
#include <iostream>
#include <map>
#include <stdexcept>
#include <string>

using namespace Qt::StringLiterals;

namespace {

using namespace lorvo;

constexpr const char* kUsage =
    "usage: make_show [--size club|national|world] [--seed N] [--numbers none|some|all]\n"
    "                 [--from DELIVERED] --out FILE\n";

using Options = std::map<std::string, std::string>;

Options ReadOptions(int argc, char** argv) {
    Options options = {{"--size", "club"},
                       {"--seed", "1"},
                       {"--numbers", "none"},
                       {"--from", LORVO_DELIVERED_DATABASE},
                       {"--out", ""}};
    for (int i = 1; i < argc; i += 2) {
        if (!options.contains(argv[i]) || i + 1 == argc)
            throw std::invalid_argument(argv[i]);
        options[argv[i]] = argv[i + 1];
    }
    return options;
}

template<class T> T Known(const std::optional<T>& value, const std::string& text) {
    if (!value)
        throw std::invalid_argument(text);
    return *value;
}

/// A file is either whole or not there, and one that is there is never overwritten.
void MakeShow(const show::ShowSize& size, std::uint64_t seed, show::Numbers numbers,
              const QString& from, const QString& out) {
    const QString unfinished = out + u".new"_s;
    QFile::remove(unfinished);
    if (QFile::exists(out) || !QFile::copy(from, unfinished) ||
        !QFile::setPermissions(unfinished, QFile::permissions(unfinished) | QFile::WriteOwner))
        throw std::runtime_error("can't make " + out.toStdString() + " out of " +
                                 from.toStdString());
    TheDataModule().Conn1.Open(unfinished);
    show::GenerateShow(size, seed, numbers);
    TheDataModule().Conn1.Close();
    if (!QFile::rename(unfinished, out))
        throw std::runtime_error("can't write " + out.toStdString());
}

void Run(const Options& options) {
    const auto size = Known(show::SizeNamed(options.at("--size")), options.at("--size"));
    const auto numbers =
        Known(show::NumbersNamed(options.at("--numbers")), options.at("--numbers"));
    const std::uint64_t seed = std::stoull(options.at("--seed"));
    if (options.at("--out").empty())
        throw std::invalid_argument("--out");
    MakeShow(size, seed, numbers, QString::fromStdString(options.at("--from")),
             QString::fromStdString(options.at("--out")));
}

} // namespace

int main(int argc, char** argv) try {
    Run(ReadOptions(argc, argv));
    return 0;
} catch (const std::invalid_argument& error) {
    std::cerr << "make_show: " << error.what() << '\n' << kUsage;
    return 2;
} catch (const std::exception& error) {
    std::cerr << "make_show: " << error.what() << '\n';
    return 1;
}
