#include "help/maker/codepage949.h"

#include <QTextCodec>

namespace {

const QTextCodec &codec()
{
    static const QTextCodec *const codec = QTextCodec::codecForName("CP949");
    if (codec == nullptr)
        qFatal("The toolkit has no code page 949.");
    return *codec;
}

/// Kanji of today, each followed by its old shape.
const char16_t oldShapes[] = u"亜亞悪惡圧壓囲圍医醫壱壹隠隱営營栄榮駅驛塩鹽縁緣"
                             u"応應欧歐殴毆桜櫻奥奧横橫温溫穏穩仮假価價会會壊壞"
                             u"懐懷絵繪概槪拡擴殻殼覚覺学學楽樂渇渴巻卷陥陷勧勸"
                             u"寛寬関關歓歡観觀気氣帰歸既旣偽僞戯戱犠犧旧舊拠據"
                             u"挙擧虚虛峡峽挟挾狭狹郷鄕暁曉区區駆驅勲勳薫薰径徑"
                             u"茎莖恵惠掲揭渓溪経經蛍螢軽輕継繼鶏鷄撃擊県縣倹儉"
                             u"剣劍険險圏圈検檢献獻権權顕顯験驗厳嚴広廣効效黄黃"
                             u"鉱鑛号號国國黒黑砕碎済濟斎齋剤劑歳歲雑雜参參桟棧"
                             u"蚕蠶惨慘賛贊残殘糸絲歯齒児兒辞辭湿濕実實舎舍写寫"
                             u"釈釋寿壽収收従從渋澁獣獸縦縱粛肅処處緒緖叙敍将將"
                             u"称稱焼燒証證条條状狀乗乘浄淨剰剩畳疊縄繩壌壤嬢孃"
                             u"譲讓醸釀触觸嘱囑真眞寝寢慎愼尽盡図圖粋粹酔醉穂穗"
                             u"随隨髄髓枢樞数數瀬瀨声聲斉齊静靜窃竊摂攝専專浅淺"
                             u"戦戰践踐銭錢潜潛繊纖禅禪双雙壮壯争爭荘莊捜搜挿揷"
                             u"巣巢装裝総總騒騷増增蔵藏臓臟属屬続續堕墮対對体體"
                             u"帯帶滞滯滝瀧択擇沢澤単單担擔胆膽団團断斷弾彈遅遲"
                             u"虫蟲昼晝鋳鑄庁廳聴聽徴徵鎮鎭逓遞鉄鐵転轉伝傳灯燈"
                             u"当當党黨盗盜稲稻闘鬪徳德独獨読讀届屆弐貳悩惱脳腦"
                             u"拝拜廃廢売賣麦麥発發髪髮抜拔蛮蠻瓶甁払拂仏佛並竝"
                             u"変變辺邊宝寶没沒翻飜毎每満滿黙默訳譯薬藥与與誉譽"
                             u"揺搖様樣謡謠来來頼賴乱亂覧覽竜龍両兩猟獵緑綠塁壘"
                             u"励勵礼禮霊靈齢齡恋戀炉爐労勞楼樓録錄湾灣脱脫説說"
                             u"税稅内內呉吳戻戾歩步涙淚錬鍊暦曆歴歷填塡頬頰剥剝"
                             u"嘘噓繋繫画劃舗鋪";

/// Letters that have no older shape, and what stands for them.
const struct {
    char16_t letter;
    const char16_t *instead;
} others[] = {
    {u'込', u"こ"},
    {u'働', u"はたら"},
    {u'枠', u"わく"},
    {u'揃', u"そろ"},
    {u'掴', u"つか"},
    {u'匂', u"にお"},
    {u'鞄', u"かばん"},
    {u'ー', u"―"},
    {u'・', u"·"},
    {u'々', u"〃"},
    {u'¥', u"￥"},
    // Where no references are read, markup is not read either.
    {u'&', u"＆"},
    {u'<', u"＜"},
    {u'>', u"＞"},
    {u'"', u"”"},
};

const QChar box = u'■';

QString nearest(QChar letter)
{
    for (const auto &other : others) {
        if (letter == other.letter)
            return QString::fromUtf16(other.instead);
    }
    if (!letter.isSurrogate() && codec().canEncode(letter))
        return letter;
    for (const char16_t *shape = oldShapes; *shape != 0; shape += 2) {
        if (letter == *shape)
            return QChar(shape[1]);
    }
    return box;
}

} // namespace

QByteArray exactLetters(const QString &text)
{
    QByteArray bytes;
    const QVector<uint> letters = text.toUcs4();
    for (const uint code : letters) {
        const QString letter = QString::fromUcs4(&code, 1);
        if (codec().canEncode(letter))
            bytes += codec().fromUnicode(letter.toHtmlEscaped());
        else
            bytes += "&#" + QByteArray::number(code) + ';';
    }
    return bytes;
}

QByteArray nearestLetters(const QString &text)
{
    QString letters;
    for (const QChar letter : text)
        letters += nearest(letter);
    return codec().fromUnicode(letters);
}

QString lettersWithoutShape(const QString &text)
{
    QString letters;
    for (const QChar letter : text) {
        if (letter != box && nearest(letter) == box)
            letters += letter;
    }
    return letters;
}
