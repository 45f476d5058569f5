#include "HelpTopics.h"

#include "base/ProgramInfo.h"
#include "documents/QtfReader.h"

#include <QFile>

namespace {

const QString kPrefix = QStringLiteral("topic://tallyNorth/app/");
const QString kSuffix = QStringLiteral("$hu-hu");

QString TopicFile(const QString& id)
{
    if (id.isEmpty() || id.contains(u'/') || id.contains(u'.'))
        return {};
    QFile file(QStringLiteral(":/help/") + id + QStringLiteral(".qtf"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

const QList<HelpTopic>& HelpTopicTree()
{
    static const QList<HelpTopic> tree = {
        {QStringLiteral("Bevezetes"), QStringLiteral("Bevezetés")},
        {QString(), QStringLiteral("Beállítások")},
        {QStringLiteral("ProgramKezelese"), QStringLiteral("A program kezeléséről általában")},
        {QStringLiteral("AFAKulcsok"), QStringLiteral("ÁFA-kulcsok")},
        {QStringLiteral("AFAMentessegOkok"), QStringLiteral("ÁFA-mentesség lehetséges okai")},
        {QStringLiteral("FizetesiModok"), QStringLiteral("Fizetési módok")},
        {QStringLiteral("VtszSzjSzamok"), QStringLiteral("VTSZ/SZJ számok")},
        {QStringLiteral("Termekek"), QStringLiteral("Termékek/szolgáltatások")},
        {QStringLiteral("Partnerek"), QStringLiteral("Partnerek")},
        {QStringLiteral("Szamlakeszites"), QStringLiteral("Számlakészítés")},
        {QStringLiteral("SztornoSzamla"), QStringLiteral("Sztornó számla")},
        {QStringLiteral("Befizetesek"), QStringLiteral("Befizetések")},
        {QStringLiteral("Csekkek"), QStringLiteral("Csekkek")},
        {QStringLiteral("Webaruhaz"), QStringLiteral("Webáruház")},
        {QStringLiteral("Listak"), QStringLiteral("Listák")},
        {QStringLiteral("NavOnlineSzamla"), QStringLiteral("Online számlaadat-szolgáltatás (NAV)")},
        {QStringLiteral("TobbCegKezelese"),
         QStringLiteral("Több cég ill. adatbázis kezelése egy programon belül")},
        {QStringLiteral("BiztonsagiMentes"), QStringLiteral("Biztonsági mentés")},
        {QStringLiteral("Uzemeltetes"), QStringLiteral("Üzemeltetéssel kapcsolatos információk")},
        {QStringLiteral("WebaruhazIllesztese"),
         QStringLiteral("Webáruház illesztése a programhoz")},
        {QStringLiteral("XmlOrders"), QStringLiteral("ORDERS példa XML")},
        {QStringLiteral("XmlProducts"), QStringLiteral("PRODUCTS példa XML")},
        {QStringLiteral("XmlPartners"), QStringLiteral("PARTNERS példa XML")},
        {QStringLiteral("XmlMagyarazatOrders"), QStringLiteral("ORDERS XML magyarázat")},
        {QStringLiteral("XmlMagyarazatProducts"), QStringLiteral("PRODUCTS XML magyarázat")},
        {QStringLiteral("XmlMagyarazatPartners"), QStringLiteral("PARTNERS XML magyarázat")},
        {QStringLiteral("Parancssor"),
         QStringLiteral("Parancssori argumentumok, rendszerintegráció")},
        {QStringLiteral("Nyilatkozat"), QStringLiteral("Nyilatkozat")},
    };
    return tree;
}

QString HelpTopicAddress(const QString& id)
{
    return kPrefix + id + kSuffix;
}

QString HelpTopicId(const QString& address)
{
    QString id = address;
    if (id.startsWith(kPrefix))
        id = id.mid(kPrefix.size());
    if (id.endsWith(kSuffix))
        id.chop(kSuffix.size());
    return id;
}

QString HelpTopicQtf(const QString& id)
{
    return QtfTopicBody(TopicFile(HelpTopicId(id))).trimmed();
}

QString HelpTopicTitle(const QString& id)
{
    const QString file = TopicFile(HelpTopicId(id));
    if (!file.startsWith(QLatin1String("topic \"")))
        return {};
    return file.mid(7, file.indexOf(QLatin1String("\";"), 7) - 7);
}

QString ProgramHomepage()
{
    return QStringLiteral("www.tallynorth.hu");
}

QString ProgramEmail()
{
    return QStringLiteral("info@tallynorth.hu");
}

QString AboutQtf()
{
    // The same address as on the invoices' footer. The fields are filled escaped: an address holds
    // QTF command characters.
    QString qtf = HelpTopicQtf(QStringLiteral("AboutTemplate"));
    qtf.replace(QStringLiteral("!VERSION!"), QtfEscape(ProgramVersion()));
    qtf.replace(QStringLiteral("!HOMEPAGE!"), QtfEscape(ProgramHomepage()));
    qtf.replace(QStringLiteral("!EMAIL!"), QtfEscape(ProgramEmail()));
    return qtf;
}
