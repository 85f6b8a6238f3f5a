#include "rules/workingtext.h"

void WorkingText::append(QStringView text)
{
    if (text.isEmpty())
        return;
    if (m_view.isEmpty()) {
        m_view = text;
        return;
    }
    QString &buffer = m_buffers[m_current];
    const bool endsTheBuffer = m_view.data() == buffer.constData() && m_view.size() == buffer.size();
    if (!endsTheBuffer) {
        rebuild([this, text](QString &next) {
            next.append(m_view.data(), int(m_view.size()));
            next.append(text.data(), int(text.size()));
        });
        return;
    }
    buffer.append(text.data(), int(text.size()));
    m_view = buffer;
}
