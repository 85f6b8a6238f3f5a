// A value on its way through joining, rules and merging. Most rules only cut, so the value stays a
// view into the input table until something has to build a new text; the buffers in which texts are
// built are used again for the next value.
#pragma once

#include <QString>
#include <QStringView>
#include <string>

/// Text under construction.
class TextBuffer : private std::u16string
{
public:
    using std::u16string::clear;
    using std::u16string::size;

    QStringView view() const { return QStringView(data(), qsizetype(size())); }
    void append(QStringView text)
    {
        std::u16string::append(reinterpret_cast<const char16_t *>(text.data()),
                               size_t(text.size()));
    }
    void append(QChar character) { push_back(character.unicode()); }
    char16_t *begin() { return data(); }
    char16_t *end() { return data() + size(); }
};

class WorkingText
{
public:
    WorkingText() = default;
    Q_DISABLE_COPY(WorkingText)

    /// The value as it stands. Valid until the next change of this object, or until the text given
    /// to set() goes away.
    QStringView view() const { return m_view; }
    QString toString() const { return m_view.toString(); }

    /// Makes the value a view: of a part of itself, or of somebody else's text, which must outlive
    /// it.
    void set(QStringView text) { m_view = text; }
    void clear() { m_view = QStringView(); }

    /// Adds a copy of a text behind the value. `text` must not be a part of this value.
    void append(QStringView text)
    {
        TextBuffer &buffer = m_buffers[m_current];
        const bool isWholeBuffer =
            m_view.data() == buffer.view().data() && m_view.size() == qsizetype(buffer.size());
        if (isWholeBuffer) {
            buffer.append(text);
            m_view = buffer.view();
        } else {
            rebuild([this, text](TextBuffer &out) {
                out.append(m_view);
                out.append(text);
            });
        }
    }

    /// Replaces the value by what `build` appends to the empty text it is given; the old value
    /// stays readable meanwhile.
    template <typename Build> void rebuild(Build build)
    {
        TextBuffer &next = m_buffers[1 - m_current];
        next.clear();
        build(next);
        m_current = 1 - m_current;
        m_view = next.view();
    }

private:
    TextBuffer m_buffers[2];
    int m_current = 0;
    QStringView m_view;
};
