#include "rules/cp932.h"

#include <QTextCodec>
#include <vector>

namespace {

// Both directions from one pass over the toolkit's codec, in its decoding direction only: a
// character counts as held by the code page when its code gives the same character back, so that
// nothing changes that no table converts.
class CodePage
{
public:
    CodePage() : m_characters(0x10000), m_codes(0x10000)
    {
        for (int code = 1; code < 0x80; ++code)
            add(quint16(code), QChar(code));
        for (int code = 0xA1; code <= 0xDF; ++code)
            add(quint16(code), QChar(0xFF61 + code - 0xA1));
        m_characters[0xA0] = 0x00A0;
        if (const QTextCodec *codec = QTextCodec::codecForName("Windows-31J"))
            addDoubleBytes(*codec);
    }

    quint16 code(QChar character) const { return m_codes[character.unicode()]; }
    QChar character(quint16 code) const { return QChar(m_characters[code]); }

private:
    void add(quint16 code, QChar character)
    {
        m_characters[code] = character.unicode();
        quint16 &known = m_codes[character.unicode()];
        if (known == 0)
            known = code;
    }

    void addDoubleBytes(const QTextCodec &codec)
    {
        for (int lead = 0x81; lead <= 0xFC; ++lead) {
            if (!Cp932::isLeadByte(uint(lead)))
                continue;
            // One line for each trail byte: a code that does not decode cannot shift the others.
            QByteArray bytes;
            for (int trail = 0x40; trail <= 0xFC; ++trail)
                bytes.append(char(lead)).append(char(trail)).append('\n');
            const QStringList lines = codec.toUnicode(bytes).split(QLatin1Char('\n'));
            for (int i = 0; i + 0x40 <= 0xFC && i < lines.size(); ++i) {
                const QString &line = lines.at(i);
                if (line.size() == 1 && line.at(0) != QChar::ReplacementCharacter)
                    add(quint16(lead << 8 | (0x40 + i)), line.at(0));
            }
        }
    }

    std::vector<ushort> m_characters;
    std::vector<quint16> m_codes;
};

const CodePage &codePage()
{
    static const CodePage instance;
    return instance;
}

} // namespace

quint16 Cp932::encode(QChar character)
{
    return codePage().code(character);
}

QChar Cp932::decode(quint16 code)
{
    return codePage().character(code);
}

bool Cp932::isLeadByte(uint byte)
{
    return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}
