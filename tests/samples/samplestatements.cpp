#include "tests/samples/samplestatements.h"

namespace {

/// Writes a statement down field by field, columns by their headings.
class StatementBuilder
{
public:
    explicit StatementBuilder(const QStringList &heads) : m_heads(heads)
    {
        m_setting.generate = true;
    }

    StatementBuilder &texts(const char *title, const char *message, const char *comment)
    {
        m_setting.title = QString::fromUtf8(title);
        m_setting.ment = QString::fromUtf8(message);
        m_setting.comment = QString::fromUtf8(comment);
        return *this;
    }
    StatementBuilder &without(CompanyInfo::Field field)
    {
        m_setting.printCompany[field] = false;
        return *this;
    }
    /// Prints a field; without columns it is an amount that is computed.
    StatementBuilder &print(StatementFields::Field field,
                            std::initializer_list<const char *> headings = {})
    {
        m_field = &m_setting.fields[field];
        m_field->toPrint = true;
        for (const char *heading : headings) {
            const QString text = QString::fromUtf8(heading);
            const int column = m_heads.indexOf(text);
            if (column < 0)
                qFatal("no column %s", heading);
            m_field->mappings.append(text);
            m_field->mapNums.append(column);
        }
        return *this;
    }
    StatementBuilder &separatedBy(const char *separator)
    {
        m_field->separator = QString::fromUtf8(separator);
        return *this;
    }
    StatementBuilder &rule(const char *rule)
    {
        m_field->rules.append(QString::fromUtf8(rule));
        return *this;
    }

    operator StatementSetting() const { return m_setting; }

private:
    const QStringList m_heads;
    StatementSetting m_setting;
    StatementField *m_field = nullptr; // the last one printed
};

} // namespace

StatementSetting koreanStatement(const QStringList &heads)
{
    using namespace StatementFields;
    return StatementBuilder(heads)
        .texts("구매명세서",
               "주문해 주셔서 고맙습니다.\n"
               "받으신 물건에 이상이 있으면 7일 안에 알려 주세요.",
               "교환과 반품은 받으신 날부터 7일 안에 하실 수 있습니다. 문의 02-0000-1200 (평일 "
               "10시~17시)\n"
               "이 명세서는 세금계산서나 영수증으로 쓸 수 없습니다.")
        .print(Name, {"수령인"})
        .rule("trim")
        .rule("append( 님)")
        .print(Address, {"수령인 주소"})
        .rule("simplified")
        .print(PostCode, {"수령인 우편번호"})
        .rule("trim")
        .print(OrderNumber, {"주문번호"})
        .print(OrderDate, {"주문일시"})
        .print(ProductName, {"주문상품명"})
        .rule("find(startsWith([무료배송] ),matchedString,delete)")
        .print(ProductNumber, {"상품품목코드"})
        .print(Option, {"상품옵션"})
        .print(Quantity, {"수량"})
        .print(UnitPrice, {"판매가"})
        .print(Subtotal)
        .print(Sum)
        .print(ShippingCharge, {"배송비"})
        .print(TotalSum, {"총주문금액"})
        .print(Point, {"적립금사용"})
        .print(Payment, {"결제금액"});
}

StatementSetting japaneseStatement(const QStringList &heads)
{
    using namespace StatementFields;
    return StatementBuilder(heads)
        .texts("納品書",
               "このたびはお買い上げいただき、誠にありがとうございます。\n"
               "商品に不備がございましたら、ご連絡ください。",
               "返品・交換は商品到着後7日以内にご連絡ください。\n"
               "代金引換のお客様は、お支払金額を配達員にお渡しください。")
        .without(CompanyInfo::Name)
        .without(CompanyInfo::PostCode)
        .without(CompanyInfo::Address)
        .print(Name, {"氏(配送先)", "名(配送先)"})
        .separatedBy("　")
        .rule("charType(fullWidth)")
        .rule("trim")
        .rule("append(　様)")
        .print(Address, {"都道府県(配送先)", "住所(配送先)"})
        .rule("simplified")
        .print(PostCode, {"郵便番号(配送先)"})
        .rule("find(startsWith(〒),matchedString,delete)")
        .rule("charType(halfWidth)")
        .rule("find(contains(－),matchedString,replace(-))")
        .print(OrderNumber, {"オーダー番号"})
        .print(OrderDate, {"オーダー日"})
        .print(ProductName, {"アイテム名"})
        .rule("newLine(REMOVE)")
        .print(ProductNumber, {"商品番号"})
        .print(Option, {"種類"})
        .print(Quantity, {"個数"})
        .print(UnitPrice, {"単価"})
        .print(Subtotal)
        .print(Sum)
        .print(Tax, {"消費税"})
        .print(ShippingCharge, {"送料"})
        .print(CodCharge, {"代引手数料"})
        .print(TotalSum)
        .print(Coupon, {"クーポン"})
        .print(Point, {"ポイント利用"})
        .print(Payment);
}
