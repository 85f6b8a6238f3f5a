#include "tests/cases/casebook.h"

namespace {

const QByteArray utf8Mark = "\xEF\xBB\xBF";

void addJoins(QList<Case> &book)
{
    // Order 1 has two items and becomes two rows, both with its customer, in the order of the
    // items. Item 9 has no order and is lost.
    book += Case("join-one-order-to-many-items")
                .form("no,name")
                .form("no,item,count", 0, 0)
                .file("orders.csv", "no,name\n1,김민수\n2,이영희\n")
                .file("items.csv", "no,item,count\n2,컵,1\n1,펜,2\n9,잉크,7\n1,공책,3\n")
                .column(Column("name").from({1}))
                .column(Column("item").from({2}))
                .column(Column("count").from({3}));

    // Each form finds its file by the headings; the order of the files does not matter, that of the
    // forms does: the orders come first.
    book += Case("join-files-in-opposite-order")
                .form("no,name")
                .form("no,item", 0, 0)
                .file("items.csv", "no,item\n2,cup\n1,pen\n")
                .file("orders.csv", "no,name\n1,Kim\n2,Lee\n")
                .column(Column("row").from({0, 1, 2}, "/"));

    // The stored pair is used crosswise: key 2 is the column of the table, targetKey 0 that of the
    // file, which disappears from the joined columns.
    book += Case("join-keys-are-crossed")
                .form("name,tel,no")
                .form("no,item", 2, 0)
                .file("orders.csv", "name,tel,no\nKim,010,1\nLee,011,2\n")
                .file("items.csv", "no,item\n2,cup\n1,pen\n")
                .column(Column("row").from({0, 1, 2, 3}, "/"));

    // The editor's pair for "order number in column 0 of the table, column 1 of the file" compares,
    // crossed, the names with the first column of the file: nobody finds a partner.
    book += Case("join-keys-stored-the-other-way-find-nothing")
                .form("no,name")
                .form("item,no", 1, 0)
                .file("orders.csv", "no,name\n1,Kim\n2,Lee\n")
                .file("items.csv", "item,no\npen,1\ncup,2\n")
                .column(Column("row").from({0, 1, 2}, "/"));

    // Order 1 has no item. Its row stays short, so its payment stands one column further to the
    // left than that of order 2: column 2 is the payment there and the item here.
    book += Case("join-row-without-partner-shifts-later-columns")
                .form("no,name")
                .form("no,item", 0, 0)
                .form("no,paid", 0, 0)
                .file("orders.csv", "no,name\n1,Kim\n2,Lee\n3,Han\n")
                .file("items.csv", "no,item\n2,cup\n")
                .file("payments.csv", "no,paid\n1,100\n2,200\n")
                .column(Column("name").from({1}))
                .column(Column("column 2").from({2}))
                .column(Column("column 3").from({3}));

    // A key column far outside joins nothing, without a word.
    book += Case("join-keys-out-of-range-join-nothing")
                .form("no,name")
                .form("no,item", 9, 0)
                .file("orders.csv", "no,name\n1,Kim\n")
                .file("items.csv", "no,item\n1,pen\n")
                .column(Column("row").from({0, 1, 2}, "/"));

    // Texts are compared, not numbers, and with their case.
    book += Case("join-compares-texts-exactly")
                .form("no,name")
                .form("no,item", 0, 0)
                .file("orders.csv", "no,name\n1,Kim\n01,Lee\na,Han\n 1,Choi\n")
                .file("items.csv", "no,item\n1,pen\nA,cup\n")
                .column(Column("row").from({0, 1, 2}, "/"));
}

void addDuplicates(QList<Case> &book)
{
    // One row for each order: the names of its items merged, the numbers added.
    book += Case("merge-texts-and-numbers-of-an-order")
                .form("no,name,item,count")
                .file("orders.csv",
                      "no,name,item,count\n"
                      "1,김민수,펜,2\n2,이영희,컵,1\n1,김민수,공책,3\n1,김민수,,4\n")
                .column(Column("no").from({0}).distinct())
                .column(Column("name").from({1}))
                .column(Column("items").from({2}).mergeTexts("/"))
                .column(Column("count").from({3}).mergeNumbers());

    // The third column is marked, and the first is compared: rows 1 and 3 are duplicates although
    // their third columns differ, rows 1 and 2 are not although they are equal.
    book += Case("distinct-compares-the-first-columns")
                .form("a,b,c")
                .file("a.csv", "a,b,c\n1,x,same\n2,y,same\n1,z,other\n")
                .column(Column("a").from({0}))
                .column(Column("b").from({1}))
                .column(Column("c").from({2}).distinct());

    // Two marks compare two columns, whichever they are.
    book += Case("distinct-twice-compares-two-columns")
                .form("a,b,c")
                .file("a.csv", "a,b,c\n1,x,p\n1,y,p\n1,x,q\n2,x,p\n")
                .column(Column("a").from({0}))
                .column(Column("b").from({1}).distinct())
                .column(Column("c").from({2}).distinct());

    // What is no 32-bit number counts as 0. A value without a duplicate stays as it is written, and
    // sums wrap around.
    book += Case("merge-numbers-reads-other-texts-as-zero")
                .form("no,count")
                .file("a.csv",
                      "no,count\n1,1.000\n1,5\n1,abc\n2,007\n3,2147483647\n3,1\n4,-2\n4, 1\n"
                      "5,3.5\n")
                .column(Column("no").from({0}).distinct())
                .column(Column("sum").from({1}).mergeNumbers());

    // The merged value holds line breaks and is written inside quotes.
    book += Case("merge-with-a-line-break-is-quoted")
                .form("no,item")
                .file("a.csv", "no,item\n1,pen\n2,cup\n1,\"ink\"\n")
                .column(Column("no").from({0}).distinct())
                .column(Column("items").from({1}).mergeTexts("\n"));

    // Without a distinct item nothing is removed, nothing merged, and no after-merge rule applied.
    book += Case("after-rules-need-a-distinct-item")
                .form("no,item")
                .file("a.csv", "no,item\n1,pen\n1,cup\n")
                .column(Column("no").from({0}))
                .column(Column("items").from({1}).mergeTexts("/").afterRules({"append(!)"}));

    // The rules see each item, the after-merge rules what became of all; they also apply to rows
    // without a duplicate, and do not change which rows are duplicates.
    book += Case("after-rules-see-the-merged-value")
                .form("no,item")
                .file("a.csv", "no,item\n1,pencil\n2,cup\n1,notebook\n")
                .column(Column("no").from({0}).distinct().afterRules({"left(0)"}))
                .column(Column("items")
                            .from({1})
                            .rules({"left(4)"})
                            .mergeTexts("+")
                            .afterRules({"left(7)", "append(.)"}));
}

void addConditions(QList<Case> &book)
{
    const QByteArray orders = "no,kind,price\n1,gift,500\n2,gift,1500\n3,sale,500\n4,sale,1500\n"
                              "5,,x\n";
    // A failing condition empties the value and keeps the row.
    book += Case("conditions-all-must-hold")
                .form("no,kind,price")
                .file("orders.csv", orders)
                .column(Column("no").from({0}))
                .column(Column("AND")
                            .from({0})
                            .onlyIf(1, "equalTo(gift)")
                            .onlyIf(2, "range(greaterThan(1000),unLimit)")
                            .combine("AND"));
    book += Case("conditions-one-must-hold")
                .form("no,kind,price")
                .file("orders.csv", orders)
                .column(Column("no").from({0}))
                .column(Column("OR")
                            .from({0})
                            .onlyIf(1, "equalTo(gift)")
                            .onlyIf(2, "range(greaterThan(1000),unLimit)")
                            .combine("OR"));
    // Any other word lets nothing pass, unless there is no condition at all.
    book += Case("conditions-with-an-unknown-word-never-hold")
                .form("no,kind,price")
                .file("orders.csv", orders)
                .column(Column("and").from({0}).onlyIf(0, "contains()").combine("and"))
                .column(Column("no word").from({0}).onlyIf(0, "contains()").combine(""))
                .column(Column("no condition").from({0}).combine("XOR"));
    // Every text test, against: apple, pineapple, Apple, empty.
    book += Case("conditions-on-texts")
                .form("a,b")
                .file("a.csv", "a,b\napple,1\npineapple,2\nApple,3\n,4\n")
                .column(Column("b").from({1}))
                .column(Column("equalTo").from({1}).onlyIf(0, "equalTo(apple)"))
                .column(Column("notEqualTo").from({1}).onlyIf(0, "notEqualTo(apple)"))
                .column(Column("contains").from({1}).onlyIf(0, "contains(pp)"))
                .column(Column("notContains").from({1}).onlyIf(0, "notContains(neapp)"))
                .column(Column("startsWith").from({1}).onlyIf(0, "startsWith(a)"))
                .column(Column("notStartsWith").from({1}).onlyIf(0, "notStartsWith(a)"))
                .column(Column("endsWith").from({1}).onlyIf(0, "endsWith(apple)"))
                .column(Column("notEndsWith").from({1}).onlyIf(0, "notEndsWith(apple)"))
                .column(Column("unknown").from({1}).onlyIf(0, "EqualTo(apple)"))
                .column(Column("equal to nothing").from({1}).onlyIf(0, "equalTo()"));
    // Numbers, and what is none and reads as 0.
    book += Case("conditions-on-numbers")
                .form("n,x")
                .file("a.csv", "n,x\n0,-\n5,-\n6,-\n-1,-\nabc,-\n5.5,-\n,-\n")
                .column(Column("n").from({0}))
                .column(Column("above 5").from({1}).onlyIf(0, "range(greaterThan(5),unLimit)"))
                .column(Column("5 or more").from({1}).onlyIf(0, "range(notLessThan(5),unLimit)"))
                .column(Column("below 0").from({1}).onlyIf(0, "range(unLimit,lessThan(0))"))
                .column(Column("0 or less").from({1}).onlyIf(0, "range(unLimit,notGreaterThan(0))"))
                .column(Column("between").from({1}).onlyIf(0, "range(greaterThan(0),lessThan(6))"))
                .column(Column("any").from({1}).onlyIf(0, "range(unLimit,unLimit)"));
    // Order 2 is unjoined: its tested column is not there and counts as empty.
    book += Case("conditions-on-a-missing-column")
                .form("no,name")
                .form("no,paid", 0, 0)
                .file("orders.csv", "no,name\n1,Kim\n2,Lee\n")
                .file("payments.csv", "no,paid\n1,100\n")
                .column(Column("name").from({1}))
                .column(Column("unpaid").from({1}).onlyIf(2, "equalTo()"));
}

void addRules(QList<Case> &book)
{
    const auto one = [](const char *folder, const QByteArray &rows, const QList<Column> &columns) {
        Case result(folder);
        result.form("text,x").file("a.csv", "text,x\n" + rows);
        for (const Column &column : columns)
            result.column(column);
        return result;
    };
    const auto rule = [](const QStringList &rules) {
        return Column(rules.join(" then ").replace(',', ';')).from({0}).rules(rules);
    };
    book += one("rules-of-length", "abcdef,-\nab,-\n,-\n한국어日本語,-\n",
                {rule({"left(3)"}), rule({"right(3)"}), rule({"cutLeft(3)"}), rule({"cutRight(3)"}),
                 rule({"left(0)"}), rule({"left(-1)"}), rule({"curRight(3)"}),
                 rule({"cutLeft(1)", "left(2)"})});
    // A piece of one letter too much is not broken off; every broken value is quoted.
    book += one("rules-of-line-breaks", "abcd,-\nabcdefg,-\nabcdefgh,-\n",
                {rule({"breakLine(3)"}), rule({"breakLine(3)", "newLine(REMOVE)"}),
                 rule({"breakLine(3)", "newLine(CRLF)", "newLine(LF)"}), rule({"breakLine(0)"})});
    book += one("rules-that-find", "xax,-\nax,-\na,-\nxyz,-\n",
                {rule({"find(contains(x),matchedString,replace(y))"}),
                 rule({"find(contains(x),fullString,replace(y))"}),
                 rule({"find(startsWith(a),matchedString,delete)"}),
                 rule({"find(endsWith(x),fullString,print)"}),
                 rule({"find(equalTo(a),matchedString,replace(b))"}),
                 rule({"find(notContains(a),matchedString,print)"}),
                 rule({"find(notStartsWith(a),matchedString,replace(_))"}),
                 rule({"find(notEndsWith(z),matchedString,delete)"}),
                 rule({"find(contains(a),nowhere,delete)"})});
    // Hangul is in no Japanese code page and passes every conversion of Japanese letters.
    book += one("rules-of-character-kinds", "Ab1-ｶﾞｱ,-\nＡｂ１－ガア,-\nがあ 한é,-\n",
                {rule({"charType(lowerCase)"}), rule({"charType(upperCase)"}),
                 rule({"charType(fullWidth)"}), rule({"charType(halfWidth)"}),
                 rule({"charType(hirakana)"}), rule({"charType(katakana)"}),
                 rule({"charType(hiragana)"})});
    book += one("rules-that-insert-and-trim", "  a  b  ,-\n x,-\n",
                {rule({"prepend(<)", "append(>)"}), rule({"append(a(b)c)"}),
                 rule({"trim", "prepend(<)", "append(>)"}),
                 rule({"simplified", "prepend(<)", "append(>)"}), rule({"trim", "left(3)"}),
                 rule({"left(3)", "trim"})});
    // Capital letters, a comma in a search text, nothing: the value stays. A length rule without
    // its brackets is understood; its number reads as 0.
    book += one("rules-that-are-not-understood", "abc,-\n",
                {rule({"Left(1)"}), rule({"left"}), rule({"find(contains(a,b),fullString,delete)"}),
                 rule({""}), rule({"unknown(1)"}), rule({"newLine(CR)"})});
}

void addInputs(QList<Case> &book)
{
    const auto columns = [](Case &shown) {
        shown.column(Column("A").from({0}, "")).column(Column("B").from({1}));
        return shown.column(Column("C").from({2}));
    };
    // The record with the comma inside quotes has four fields under three headings and is dropped.
    book += columns(Case("input-quoted-comma-drops-the-record")
                        .form("no,name,address")
                        .file("a.csv",
                              "no,name,address\n1,Kim,\"Seoul, Mapo\"\n2,\"Lee\",Busan\n"
                              "3,\"Han \"\"K\"\"\",Jeju\n"));
    // The break stays in the value, and the value is written inside quotes again.
    book += columns(Case("input-line-break-in-a-quoted-field")
                        .form("no,memo,name")
                        .file("a.csv",
                              "no,memo,name\r\n1,\"leave it\r\nat the door\",Kim\r\n"
                              "2,none,Lee\r\n"));
    // A blank line becomes part of the next record's first field.
    book += columns(Case("input-blank-lines-go-into-the-next-record")
                        .form("a,b,c")
                        .file("a.csv", "a,b,c\n1,2,3\n\n4,5,6\n\n\n7,8,9\n\n"));
    // Lines 2 and 3 together have too many fields; the last record lacks one: both are dropped.
    book += columns(Case("input-short-and-long-records-are-dropped")
                        .form("a,b,c")
                        .file("a.csv", "a,b,c\n1,2\n3,4,5\n6,7,8\n9,10,11,12\n13,14,15\n16,17"));
    // Only the last field is trimmed, and it is trimmed before its quotes go.
    book += columns(Case("input-only-the-last-field-is-trimmed")
                        .form("a,b ,c")
                        .file("a.csv", " a,b ,c \n 1 , \"2\" , 3 \n 4,5 ,\" 6 \" \n"));
    book +=
        columns(Case("input-mark-and-windows-line-ends")
                    .form("번호,이름,주소")
                    .file("a.csv", utf8Mark + "번호,이름,주소\r\n1,김민수,서울\r\n2,이영희,부산"));
    // Columns are found by their place, so equal and empty names do no harm.
    book +=
        columns(Case("input-headings-twice-and-empty").form("a,a,").file("a.csv", "a,a,\n1,2,3\n"));
    // One form takes any number of files; equal rows of two files stay two rows.
    book += columns(Case("input-several-files-of-one-form")
                        .form("a,b,c")
                        .file("z.csv", "a,b,c\n1,2,3\n4,5,6\n")
                        .file("a.csv", "a,b,c\n")
                        .file("m.csv", "a,b,c\r\n1,2,3\r\n7,8,9"));
    // NUL, broken UTF-8 and lone quotes are data like any other.
    book +=
        columns(Case("input-broken-characters")
                    .form("a,b,c")
                    .file("a.csv", QByteArray("a,b,c\n1\0x,\xFF\xE3\x81,\"\n\",\"\"\",3\"\n", 25)));
    book += columns(Case("input-without-data-rows").form("a,b,c").file("a.csv", "a,b,c\n"));
}

void addOutputs(QList<Case> &book)
{
    // Commas and quotes are written as they are: they shift the columns of whoever reads the file.
    book += Case("output-comma-is-not-quoted")
                .form("a,b")
                .file("a.csv", "a,b\n1,x\"y\n")
                .column(Column("both, joined").from({0, 1}, ", "))
                .column(Column("\"quoted\"").from({1}));
    book += Case("output-company-fields")
                .form("no,name")
                .file("a.csv", "no,name\n1,Kim\n2,Lee\n")
                .companyField(CompanyInfo::Name, "코린 상사")
                .companyField(CompanyInfo::Tel, "02-0123-4567")
                .companyField(CompanyInfo::Email, "shop@example.com")
                .column(Column("name").from({1}))
                .column(Column("sender")
                            .company(CompanyInfo::Name)
                            .company(CompanyInfo::Tel)
                            .separator(" / "))
                .column(Column("mail").company(CompanyInfo::Email).rules({"left(4)"}))
                .column(Column("never entered").company(CompanyInfo::Fax))
                .column(Column("no such field").company(8))
                .column(Column("mixed").from({0}).company(CompanyInfo::Name).separator(":"));
    // What no editor stores and a damaged file may hold.
    Column unknownKind("unknown kind of source");
    unknownKind.from({0});
    unknownKind.record().mapSources = {2};
    Column missingKinds("missing kinds are the company");
    missingKinds.from({0, 0}, "-");
    missingKinds.record().mapSources.clear();
    book += Case("output-damaged-sources-read-as-empty")
                .form("a,b")
                .file("a.csv", "a,b\n1,2\n")
                .companyField(CompanyInfo::Name, "Quorin")
                .column(Column("too far").from({99}))
                .column(Column("negative").from({-1}))
                .column(Column("between").from({0, 99, 1}, "-"))
                .column(unknownKind)
                .column(missingKinds)
                .column(Column("no source"));
}

void addWholeShops(QList<Case> &book)
{
    // The export has a line for each article, the carrier wants a parcel for each order: articles
    // merged, counts added, the address cut to what the label holds, the message only where it is
    // a request about the door.
    book +=
        Case("shop-parcel-for-each-order")
            .form("주문번호,상품명,옵션,수량,수령인,전화,주소,메시지")
            .file(
                "orders.csv",
                utf8Mark
                    + "주문번호,상품명,옵션,수량,수령인,전화,주소,메시지\r\n"
                      "A-1,머그컵,파랑,2,김민수,010-1111-2222,서울시 마포구 가나로 1,문 앞에 "
                      "두세요\r\n"
                      "A-1,접시,,1,김민수,010-1111-2222,서울시 마포구 가나로 1,문 앞에 두세요\r\n"
                      "A-2,머그컵,빨강,3,이영희,010-3333-4444,부산시 해운대구 다라로 22,빨리요\r\n"
                      "A-1,수저,은색,4,김민수,010-1111-2222,서울시 마포구 가나로 1,문 앞에 "
                      "두세요\r\n")
            .companyField(CompanyInfo::StoreName, "코린 상점")
            .column(Column("주문").from({0}).distinct().afterRules({"prepend(#)"}))
            .column(Column("받는 분").from({4}))
            .column(Column("전화").from({5}).rules({"find(contains(-),matchedString,delete)"}))
            .column(Column("주소").from({6}).rules({"left(10)"}))
            .column(Column("상품").from({1, 2}, ":").mergeTexts(" + "))
            .column(Column("수량").from({3}).mergeNumbers())
            .column(Column("요청").from({7}).onlyIf(7, "contains(문 앞)"))
            .column(Column("보내는 곳").company(CompanyInfo::StoreName));

    // The label has three lines of sixteen full-width letters.
    const auto addressLine = [](const QString &name, const QStringList &cut) {
        return Column(name).from({2, 3}).rules(QStringList("charType(fullWidth)") + cut);
    };
    book += Case("shop-address-in-three-lines")
                .form("番号,氏名,都道府県,住所")
                .file("orders.csv",
                      utf8Mark
                          + "番号,氏名,都道府県,住所\r\n"
                            "1,山田 太郎,東京都,千代田区丸の内1-2-3 ｺｰﾘﾝﾋﾞﾙﾃﾞｨﾝｸﾞ新館1234号室\r\n"
                            "2,佐藤 花子,大阪府,北区梅田9\r\n")
                .column(Column("氏名").from({1}).rules({"charType(fullWidth)", "append(　様)"}))
                .column(addressLine("住所1", {"left(16)"}))
                .column(addressLine("住所2", {"cutLeft(16)", "left(16)"}))
                .column(addressLine("住所3", {"cutLeft(32)", "left(16)"}));

    // Orders, payments and articles of three files, one line for each order in the books.
    book += Case("shop-orders-payments-and-articles")
                .form("no,customer")
                .form("no,article,price", 0, 0)
                .form("no,method", 0, 0)
                .file("payments.csv", "no,method\n1,card\n2,bank\n3,card\n")
                .file("articles.csv",
                      "no,article,price\n1,pen,1000\n1,cup,5000\n2,ink,3000\n3,mug,100\n")
                .file("orders.csv", "no,customer\n1,Kim\n2,Lee\n3,Han\n")
                .column(Column("no").from({0}).distinct())
                .column(Column("customer").from({1}).rules({"charType(upperCase)"}))
                .column(Column("articles").from({2}).mergeTexts("; ").afterRules({"left(6)"}))
                .column(Column("total").from({3}).mergeNumbers().afterRules({"append(원)"}))
                .column(Column("paid by card")
                            .from({3})
                            .onlyIf(4, "equalTo(card)")
                            .onlyIf(3, "range(notLessThan(1000),unLimit)")
                            .mergeNumbers());
}

void addFailures(QList<Case> &book)
{
    book += Case("error-heading-in-another-case")
                .form("no,name")
                .file("a.csv", "no,name\n1,Kim\n")
                .file("b.csv", "no,Name\n2,Lee\n")
                .column(Column("no").from({0}));
    book += Case("error-one-column-more")
                .form("no,name")
                .file("a.csv", "no,name,tel\n1,Kim,010\n")
                .column(Column("no").from({0}));
    // Counted before any file is opened.
    book += Case("error-wrong-number-of-files")
                .form("no,name")
                .form("no,item", 0, 0)
                .missingFile("a.csv")
                .missingFile("b.csv")
                .missingFile("c.csv")
                .column(Column("no").from({0}));
    book += Case("error-no-file-for-a-form")
                .form("no,name")
                .form("no,item", 0, 0)
                .file("a.csv", "no,name\n1,Kim\n")
                .file("b.csv", "no,name\n2,Lee\n")
                .column(Column("no").from({0}));
    book += Case("error-setting-without-input-forms")
                .file("a.csv", "no,name\n1,Kim\n")
                .column(Column("no").from({0}));
    book += Case("error-missing-file")
                .form("no,name")
                .file("a.csv", "no,name\n1,Kim\n")
                .missingFile("none.csv")
                .column(Column("no").from({0}));
}

} // namespace

QList<Case> caseBook()
{
    QList<Case> book;
    addJoins(book);
    addDuplicates(book);
    addConditions(book);
    addRules(book);
    addInputs(book);
    addOutputs(book);
    addWholeShops(book);
    addFailures(book);
    return book;
}
