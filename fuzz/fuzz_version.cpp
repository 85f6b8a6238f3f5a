// Any bytes as the document that names the latest version. The first byte tells the size of the
// pieces in which it arrives: whatever they are, the answer is that for the whole.
#include "fuzz/check.h"
#include "update/versiondocument.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const int step = 1 + data[0];
    const QByteArray bytes(reinterpret_cast<const char *>(data) + 1, int(size) - 1);
    const VersionDocument whole = readVersionDocument(bytes);
    check(whole.wellFormed || whole.latestVersion.isEmpty(), "broken documents name no version");
    isNewerVersion(whole.latestVersion, QStringLiteral("1.00"));

    VersionDocumentReader reader;
    for (int i = 0; i < bytes.size(); i += step)
        reader.addData(bytes.mid(i, step));
    const VersionDocument parts = reader.finish();
    // The toolkit lets a "]]>" within a text pass when a piece ends in it, so pieces may be read
    // where the whole is not.
    if (whole.wellFormed) {
        check(parts.wellFormed, "pieces are as good as the whole");
        check(parts.latestVersion == whole.latestVersion, "pieces say the same",
              parts.latestVersion);
    }
    return 0;
}
