#pragma once
// The parts of an archive (zip), as office programs pack their documents.

#include <QByteArray>
#include <QString>
#include <memory>

struct zip;

namespace lorvo {

/// An archive in memory, read alone. What is damaged or too large raises PlatformError, whose text
/// is a cause in Czech without the file's name.
class ZipParts {
  public:
    /// Raises PlatformError where the bytes are no archive.
    explicit ZipParts(QByteArray archive);

    /// Whether a part bears the name; letter case counts for nothing.
    [[nodiscard]] bool Has(const QString& name) const;
    /// The part's bytes, unpacked. Raises PlatformError where there is no such part, where it is
    /// damaged, or larger than 200 MB.
    [[nodiscard]] QByteArray Part(const QString& name) const;

  private:
    struct Discard {
        void operator()(zip* archive) const;
    };

    QByteArray bytes_;
    std::unique_ptr<zip, Discard> zip_;
};

} // namespace lorvo
