// Where things stand on a statement page: A4, in dots of 96 to the inch on every desktop. The page
// begins at its printable area; rectangles include their last row and column.
#pragma once

#include <QRect>

class PageGeometry
{
public:
    static constexpr int resolution = 96; ///< dots per inch
    static constexpr int margin = 10;     ///< around the printable area, in points

    static constexpr int titleLine = 40;    ///< y of the line below the title
    static constexpr int footerHeight = 80; ///< of the comment's band

    /// Width and height of the printable area, height of the whole paper.
    PageGeometry(int width, int height, int paperHeight);

    int width() const { return m_width; }
    int height() const { return m_height; }
    /// y of the line above the comment.
    int footerLine() const { return m_height - footerHeight; }
    /// y of the line to cut or fold along: one third down the paper.
    int cuttingLine() const { return m_cuttingLine; }

    QRect titleBox() const { return QRect(0, 0, m_width, titleLine); }
    QRect companyBox() const { return QRect(m_width / 2 + 25, 150, m_width / 2 - 75, 170); }
    QRect customerBox() const { return QRect(50, 80, m_width / 2 - 75, 110); }
    QRect messageBox() const { return QRect(50, 210, m_width / 2 - 75, 110); }
    /// The order, its products and amounts; what is longer is cut off.
    QRect orderBox() const;
    QRect commentBox() const { return QRect(0, footerLine(), m_width, footerHeight); }

private:
    int m_width;
    int m_height;
    int m_cuttingLine;
};
