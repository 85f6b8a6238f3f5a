// Writes an invented order export of any size: orders.csv (one line per order) and items.csv (one
// to three lines per order), joined by their first column. The same arguments give the same bytes.
#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QStringList>
#include <QTextStream>

namespace {

// A small generator of our own, so that the data are the same on every platform.
class Random
{
public:
    quint32 below(quint32 limit)
    {
        m_state = m_state * 6364136223846793005ULL + 1442695040888963407ULL;
        return quint32((m_state >> 33) % limit);
    }

private:
    quint64 m_state = 20111004;
};

const char *const familyNames[] = {"김", "이", "박", "최", "정", "강", "조", "윤", "장", "임"};
const char *const givenNames[] = {"서준", "하은", "도윤", "지우", "예준", "서연", "민준", "지아"};
const char *const towns[] = {"서울특별시 가온구 나래로", "부산광역시 다솔구 라온길",
                             "대구광역시 마루구 바다로", "경기도 사랑시 아름구 자람로"};
const char *const goods[] = {"유기농 녹차 100g", "수제 딸기잼",   "면 손수건 세트", "도자기 머그컵",
                             "향초 (라벤더)",    "가죽 카드지갑", "Linen apron",    "USB cable 1m"};
const char *const options[] = {"기본", "색상: 하늘색", "크기: L", "선물 포장", ""};
const char *const messages[] = {"", "문 앞에 놓아주세요", "배송 전에 연락 바랍니다",
                                "경비실에 맡겨주세요", "Leave at the door"};
const char *const means[] = {"카드", "무통장입금", "휴대폰", "포인트"};

template <size_t N> const char *pick(const char *const (&texts)[N], Random &random)
{
    return texts[random.below(N)];
}

QByteArray orderNumber(int order)
{
    return "20261121-" + QByteArray::number(order).rightJustified(8, '0');
}

void writeOrder(QFile &orders, QFile &items, int order, Random &random)
{
    const QByteArray number = orderNumber(order);
    const QByteArray phone = "010-" + QByteArray::number(1000 + random.below(9000)) + '-'
        + QByteArray::number(1000 + random.below(9000));
    QByteArray line = number;
    line.append(",2026-11-21 ").append(QByteArray::number(10 + random.below(14))).append(":00:00,");
    line.append(pick(familyNames, random)).append(pick(givenNames, random)).append(',');
    line.append(phone).append(',');
    line.append(QByteArray::number(10000 + random.below(50000))).append(',');
    line.append(pick(towns, random)).append(' ').append(QByteArray::number(1 + random.below(300)));
    line.append(' ').append(QByteArray::number(101 + random.below(900))).append("호,");
    line.append(pick(messages, random)).append(',');
    line.append(pick(means, random)).append(',');
    line.append(QByteArray::number(1000 * (1 + random.below(200)))).append("\r\n");
    orders.write(line);

    const quint32 count = 1 + random.below(3);
    for (quint32 i = 0; i < count; ++i) {
        QByteArray item = number;
        item.append(",P").append(QByteArray::number(100000 + random.below(900000))).append(',');
        item.append(pick(goods, random)).append(',');
        item.append(pick(options, random)).append(',');
        item.append(QByteArray::number(1 + random.below(5))).append(',');
        item.append(QByteArray::number(500 * (1 + random.below(100)))).append("\r\n");
        items.write(item);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    const int count = arguments.value(1).toInt();
    if (arguments.size() != 3 || count <= 0) {
        QTextStream(stderr) << "usage: quorinGenerate ORDERS FOLDER\n";
        return 2;
    }
    QFile orders(arguments.at(2) + QStringLiteral("/orders.csv"));
    QFile items(arguments.at(2) + QStringLiteral("/items.csv"));
    if (!orders.open(QIODevice::WriteOnly) || !items.open(QIODevice::WriteOnly)) {
        QTextStream(stderr) << "cannot write to " << arguments.at(2) << '\n';
        return 1;
    }
    orders.write(
        "주문번호,주문일시,수령인,휴대전화,우편번호,주소,배송메시지,결제수단,결제금액\r\n");
    items.write("주문번호,상품코드,상품명,옵션,수량,판매가\r\n");
    Random random;
    for (int order = 1; order <= count; ++order)
        writeOrder(orders, items, order, random);
    return 0;
}
