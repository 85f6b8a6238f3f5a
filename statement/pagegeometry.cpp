#include "statement/pagegeometry.h"

namespace {

const int orderIndent = 10; // left and right

} // namespace

PageGeometry::PageGeometry(int width, int height, int paperHeight)
    : m_width(width), m_height(height),
      m_cuttingLine(paperHeight / 3 - (paperHeight - height) / 2 + 2)
{
}

QRect PageGeometry::orderBox() const
{
    return QRect(orderIndent, m_cuttingLine, m_width - 2 * orderIndent,
                 m_height - m_cuttingLine - footerHeight);
}
