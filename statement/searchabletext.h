// Keeps the text of a PDF file what it was. A font draws some characters with one glyph: the sun of
// every date and the radical of the same shape, the space and the tabulator. The toolkit's PDF
// tells viewers the lowest of them, so nobody would find or copy what was written.
#pragma once

#include <QIODevice>
#include <bitset>

/// The characters (of the first plane) that were painted.
class UsedCharacters
{
public:
    void add(const QString &text);
    bool contains(ushort character) const { return m_used[character]; }

private:
    std::bitset<0x10000> m_used;
};

/// Passes on to `target` what a PDF writer writes. In the tables that lead from glyphs to
/// characters, a character that was not used gives way to one of the same shape that was. `used`
/// may grow until these tables are written, at the end of the file. The size of nothing changes;
/// tables that look otherwise than the toolkit's pass as they are.
class SearchableTextDevice : public QIODevice
{
public:
    SearchableTextDevice(QIODevice &target, const UsedCharacters &used);

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 size) override;

private:
    void mend(QByteArray &table) const;
    ushort written(ushort character) const;

    QIODevice &m_target;
    const UsedCharacters &m_used;
};
