#include "demo/demo_names.h"

#include <array>

namespace kurbo {
namespace {

struct Name {
    QStringView text;
    QStringView kana;
};

constexpr std::array<Name, 60> families{
    {{u"佐藤", u"ｻﾄｳ"},   {u"鈴木", u"ｽｽﾞｷ"},  {u"高橋", u"ﾀｶﾊｼ"},    {u"田中", u"ﾀﾅｶ"},   {u"伊藤", u"ｲﾄｳ"},
     {u"渡辺", u"ﾜﾀﾅﾍﾞ"}, {u"山本", u"ﾔﾏﾓﾄ"},  {u"中村", u"ﾅｶﾑﾗ"},    {u"小林", u"ｺﾊﾞﾔｼ"}, {u"加藤", u"ｶﾄｳ"},
     {u"吉田", u"ﾖｼﾀﾞ"},  {u"山田", u"ﾔﾏﾀﾞ"},  {u"佐々木", u"ｻｻｷ"},   {u"山口", u"ﾔﾏｸﾞﾁ"}, {u"松本", u"ﾏﾂﾓﾄ"},
     {u"井上", u"ｲﾉｳｴ"},  {u"木村", u"ｷﾑﾗ"},   {u"林", u"ﾊﾔｼ"},       {u"斎藤", u"ｻｲﾄｳ"},  {u"清水", u"ｼﾐｽﾞ"},
     {u"山崎", u"ﾔﾏｻﾞｷ"}, {u"森", u"ﾓﾘ"},      {u"池田", u"ｲｹﾀﾞ"},    {u"橋本", u"ﾊｼﾓﾄ"},  {u"阿部", u"ｱﾍﾞ"},
     {u"石川", u"ｲｼｶﾜ"},  {u"山下", u"ﾔﾏｼﾀ"},  {u"中島", u"ﾅｶｼﾞﾏ"},   {u"石井", u"ｲｼｲ"},   {u"小川", u"ｵｶﾞﾜ"},
     {u"前田", u"ﾏｴﾀﾞ"},  {u"岡田", u"ｵｶﾀﾞ"},  {u"長谷川", u"ﾊｾｶﾞﾜ"}, {u"藤田", u"ﾌｼﾞﾀ"},  {u"後藤", u"ｺﾞﾄｳ"},
     {u"近藤", u"ｺﾝﾄﾞｳ"}, {u"村上", u"ﾑﾗｶﾐ"},  {u"遠藤", u"ｴﾝﾄﾞｳ"},   {u"青木", u"ｱｵｷ"},   {u"坂本", u"ｻｶﾓﾄ"},
     {u"福田", u"ﾌｸﾀﾞ"},  {u"太田", u"ｵｵﾀ"},   {u"西村", u"ﾆｼﾑﾗ"},    {u"藤井", u"ﾌｼﾞｲ"},  {u"金子", u"ｶﾈｺ"},
     {u"岡本", u"ｵｶﾓﾄ"},  {u"藤原", u"ﾌｼﾞﾜﾗ"}, {u"三浦", u"ﾐｳﾗ"},     {u"中野", u"ﾅｶﾉ"},   {u"原田", u"ﾊﾗﾀﾞ"},
     {u"松田", u"ﾏﾂﾀﾞ"},  {u"竹内", u"ﾀｹｳﾁ"},  {u"小野", u"ｵﾉ"},      {u"田村", u"ﾀﾑﾗ"},   {u"中山", u"ﾅｶﾔﾏ"},
     {u"和田", u"ﾜﾀﾞ"},   {u"石田", u"ｲｼﾀﾞ"},  {u"森田", u"ﾓﾘﾀ"},     {u"上田", u"ｳｴﾀﾞ"},  {u"内田", u"ｳﾁﾀﾞ"}}};
// Thirty men's names, then thirty women's.
constexpr std::array<Name, 60> givenNames{
    {{u"浩", u"ﾋﾛｼ"},   {u"誠", u"ﾏｺﾄ"},     {u"健一", u"ｹﾝｲﾁ"},   {u"大輔", u"ﾀﾞｲｽｹ"}, {u"隆", u"ﾀｶｼ"},
     {u"拓也", u"ﾀｸﾔ"}, {u"翔太", u"ｼｮｳﾀ"},  {u"直樹", u"ﾅｵｷ"},    {u"和也", u"ｶｽﾞﾔ"},  {u"哲也", u"ﾃﾂﾔ"},
     {u"達也", u"ﾀﾂﾔ"}, {u"雄太", u"ﾕｳﾀ"},   {u"剛", u"ﾂﾖｼ"},      {u"学", u"ﾏﾅﾌﾞ"},    {u"修", u"ｵｻﾑ"},
     {u"亮", u"ﾘｮｳ"},   {u"健太", u"ｹﾝﾀ"},   {u"秀樹", u"ﾋﾃﾞｷ"},   {u"正樹", u"ﾏｻｷ"},   {u"大介", u"ﾀﾞｲｽｹ"},
     {u"智", u"ｻﾄｼ"},   {u"英明", u"ﾋﾃﾞｱｷ"}, {u"裕二", u"ﾕｳｼﾞ"},   {u"蓮", u"ﾚﾝ"},      {u"悠斗", u"ﾕｳﾄ"},
     {u"颯太", u"ｿｳﾀ"}, {u"陽介", u"ﾖｳｽｹ"},  {u"純一", u"ｼﾞｭﾝｲﾁ"}, {u"慎吾", u"ｼﾝｺﾞ"},  {u"康平", u"ｺｳﾍｲ"},
     {u"恵子", u"ｹｲｺ"}, {u"由美子", u"ﾕﾐｺ"}, {u"真由美", u"ﾏﾕﾐ"},  {u"久美子", u"ｸﾐｺ"}, {u"智子", u"ﾄﾓｺ"},
     {u"陽子", u"ﾖｳｺ"}, {u"裕子", u"ﾕｳｺ"},   {u"直美", u"ﾅｵﾐ"},    {u"香織", u"ｶｵﾘ"},   {u"美穂", u"ﾐﾎ"},
     {u"愛", u"ｱｲ"},    {u"彩", u"ｱﾔ"},      {u"美咲", u"ﾐｻｷ"},    {u"麻衣", u"ﾏｲ"},    {u"さくら", u"ｻｸﾗ"},
     {u"葵", u"ｱｵｲ"},   {u"結衣", u"ﾕｲ"},    {u"千尋", u"ﾁﾋﾛ"},    {u"舞", u"ﾏｲ"},      {u"明美", u"ｱｹﾐ"},
     {u"洋子", u"ﾖｳｺ"}, {u"幸子", u"ｻﾁｺ"},   {u"理恵", u"ﾘｴ"},     {u"優子", u"ﾕｳｺ"},   {u"沙織", u"ｻｵﾘ"},
     {u"友美", u"ﾄﾓﾐ"}, {u"綾香", u"ｱﾔｶ"},   {u"春香", u"ﾊﾙｶ"},    {u"莉子", u"ﾘｺ"},    {u"奈々", u"ﾅﾅ"}}};

constexpr std::array<QStringView, 16> departments{
    u"総務部", u"営業部",     u"製造部", u"経理部", u"開発部", u"品質保証部", u"購買部", u"物流部",
    u"人事部", u"情報ｼｽﾃﾑ部", u"企画部", u"広報部", u"法務部", u"資材部",     u"保守部", u"海外事業部"};
constexpr std::array<QStringView, 12> branches{u"札幌",   u"仙台", u"さいたま", u"千葉", u"横浜", u"静岡",
                                               u"名古屋", u"大阪", u"神戸",     u"広島", u"高松", u"福岡"};

constexpr int familyCount = static_cast<int>(families.size());
constexpr int givenCount = static_cast<int>(givenNames.size());
static_assert(nameCount == familyCount * givenCount);

} // namespace

PersonName personName(int number) {
    // Prime to the number of pairs, so that no pair comes twice before all have come.
    constexpr int stride = 1543;
    const int pair = static_cast<int>(std::int64_t{number} * stride % nameCount);
    const Name& family = families[static_cast<std::size_t>(pair % familyCount)];
    const Name& given = givenNames[static_cast<std::size_t>(pair / familyCount)];
    return {QStringLiteral("%1　%2").arg(family.text, given.text), QStringLiteral("%1 %2").arg(family.kana, given.kana),
            pair / familyCount >= givenCount / 2};
}

QString sectionName(int number) {
    const auto at = static_cast<std::size_t>(number);
    QString department = departments[at % departments.size()].toString();
    if (at < departments.size()) return department;
    return branches[at / departments.size() - 1].toString() + QStringLiteral("支店") + department;
}

} // namespace kurbo
