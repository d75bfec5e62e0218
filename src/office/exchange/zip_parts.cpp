#include "office/exchange/zip_parts.h"

#include "platform/values/errors.h"

#include <utility>
#include <zip.h>

namespace lorvo {

using namespace Qt::StringLiterals;

namespace {

constexpr zip_uint64_t kLargestPart = 200'000'000;

struct CloseFile {
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};
using OpenPart = std::unique_ptr<zip_file_t, CloseFile>;

[[noreturn]] void Refuse(const QString& cause) {
    throw PlatformError(cause.toStdString());
}

zip_t* OpenArchive(const QByteArray& bytes) {
    const auto size = static_cast<zip_uint64_t>(bytes.size());
    zip_source_t* source = zip_source_buffer_create(bytes.constData(), size, 0, nullptr);
    zip_t* archive = source ? zip_open_from_source(source, ZIP_RDONLY, nullptr) : nullptr;
    if (!archive)
        zip_source_free(source);
    return archive;
}

zip_int64_t PlaceOf(zip_t* archive, const QString& name) {
    return zip_name_locate(archive, name.toUtf8().constData(), ZIP_FL_NOCASE);
}

/// The size that the archive names for a part, in bytes.
zip_uint64_t SizeOf(zip_t* archive, zip_uint64_t place, const QString& name) {
    zip_stat_t stat;
    if (zip_stat_index(archive, place, 0, &stat) != 0 || !(stat.valid & ZIP_STAT_SIZE))
        Refuse(u"část %1 je poškozená"_s.arg(name));
    if (stat.size > kLargestPart)
        Refuse(u"část %1 je příliš velká"_s.arg(name));
    return stat.size;
}

/// Whether the part is as long as the bytes; its end is where its sum is checked.
bool ReadToEnd(zip_file_t* part, QByteArray& bytes) {
    const zip_int64_t size = bytes.size();
    zip_int64_t read = 0;
    while (read < size) {
        const auto rest = static_cast<zip_uint64_t>(size - read);
        const zip_int64_t more = zip_fread(part, bytes.data() + read, rest);
        if (more <= 0)
            return false;
        read += more;
    }
    char beyond = 0;
    return zip_fread(part, &beyond, 1) == 0;
}

} // namespace

void ZipParts::Discard::operator()(zip* archive) const {
    zip_discard(archive);
}

ZipParts::ZipParts(QByteArray archive) : bytes_(std::move(archive)), zip_(OpenArchive(bytes_)) {
    if (!zip_)
        Refuse(u"není to archiv nebo je poškozený"_s);
}

bool ZipParts::Has(const QString& name) const {
    return PlaceOf(zip_.get(), name) >= 0;
}

QByteArray ZipParts::Part(const QString& name) const {
    const zip_int64_t found = PlaceOf(zip_.get(), name);
    if (found < 0)
        Refuse(u"část %1 chybí"_s.arg(name));
    const auto place = static_cast<zip_uint64_t>(found);
    QByteArray bytes(static_cast<qsizetype>(SizeOf(zip_.get(), place, name)), Qt::Uninitialized);
    const OpenPart part(zip_fopen_index(zip_.get(), place, 0));
    if (!part || !ReadToEnd(part.get(), bytes))
        Refuse(u"část %1 je poškozená"_s.arg(name));
    return bytes;
}

} // namespace lorvo
