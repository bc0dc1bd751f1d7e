// SPDX-License-Identifier: Apache-2.0
#include <model/MapFixture.h>

#include <QDir>
#include <QElapsedTimer>

using Kind = HostXMLError::Kind;

namespace
{

class HostXML : public MapFixture
{
protected:
    HostXMLError openError(const QByteArray &text)
    {
        return hostErrorOf([&] { HostXMLDocument::open(write(u"x.xml"_s, text)).validate(); });
    }
};

constexpr auto ownDTD = "<!DOCTYPE spec [<!ELEMENT spec (name*)><!ELEMENT name (#PCDATA)>%1]>";

} // namespace

TEST_F(HostXML, ValidatesAgainstTheDocumentsOwnDTD)
{
    const QByteArray internal = QByteArray(ownDTD).replace("%1", "");
    EXPECT_NO_THROW(HostXMLDocument::open(write(u"a.xml"_s, internal + "<spec/>")).validate());
    const auto system = HostXMLDocument::open(
        write(u"b.xml"_s, "<!DOCTYPE spec SYSTEM 'any.dtd'><spec id='é'><name/></spec>"));
    EXPECT_TRUE(system.hasDTD());
    EXPECT_NO_THROW(system.validate());
    EXPECT_EQ(system.rootElement()->attribute("id"), u"é");
    EXPECT_EQ(openError("<spec/>").kind, Kind::Invalid) << "no DTD at all";
    EXPECT_EQ(openError("<!DOCTYPE spec><spec/>").kind, Kind::Invalid);
}

TEST_F(HostXML, SaysWhereTheFaultIs)
{
    const auto torn = openError("<spec>\n<name>\n</spec>");
    EXPECT_EQ(torn.kind, Kind::NotWellFormed);
    EXPECT_EQ(torn.line, 3);
    EXPECT_TRUE(torn.message.startsWith(u"Opening and"_s)) << torn.what();
    EXPECT_TRUE(QString::fromUtf8(torn.what()).startsWith(files.path(u"x.xml:3: "_s)));
    const auto invalid = openError(QByteArray(ownDTD).replace("%1", "") + "<spec>\n<toc/></spec>");
    EXPECT_EQ(invalid.kind, Kind::Invalid);
    EXPECT_TRUE(invalid.message.contains(u"expecting (name)*, got (toc)"_s)) << invalid.what();
    EXPECT_EQ(openError("").kind, Kind::NotWellFormed);
    EXPECT_EQ(openError("no XML").kind, Kind::NotWellFormed);
}

TEST_F(HostXML, ChecksTheRootAgainstTheNameOfAnAttachedDTD)
{
    const auto document = HostXMLDocument::open(write(u"a.xml"_s, "<name>x</name>"));
    auto attached = document;
    attached.attachDTD(dtd, u"spec"_s);
    EXPECT_EQ(hostErrorOf([&] { document.validate(); }).kind, Kind::Invalid);
    EXPECT_EQ(hostErrorOf([&] {
                  attached.attachDTD(write(u"bad.dtd"_s, "<!ELEMENT spec"), u"spec"_s);
              }).kind,
              Kind::BadDTD);
}

TEST_F(HostXML, ReachesNothingOutsideItsDirectory)
{
    const QUrl outside = write(u"secret.txt"_s, "<!ELEMENT spec ANY>");
    const auto open = [&](const QByteArray &text) {
        return HostXMLDocument::open(write(u"maps/x.xml"_s, text));
    };
    const auto refused = [&](const QByteArray &text) {
        try {
            open(text);
        } catch (const HostXMLError &error) {
            return error.message.contains(u"is not read"_s);
        }
        return false;
    };
    const QByteArray path = outside.toLocalFile().toUtf8();
    EXPECT_TRUE(refused("<!DOCTYPE spec SYSTEM 'http://127.0.0.1:9/spec.dtd'><spec/>"));
    EXPECT_TRUE(refused("<!DOCTYPE spec SYSTEM 'ftp://127.0.0.1/spec.dtd'><spec/>"));
    EXPECT_TRUE(refused("<!DOCTYPE spec SYSTEM 'file://host/etc/spec.dtd'><spec/>"));
    EXPECT_TRUE(refused("<!DOCTYPE spec SYSTEM '../secret.txt'><spec/>"));
    EXPECT_TRUE(refused("<!DOCTYPE spec SYSTEM '%2e%2e/secret.txt'><spec/>"));
    EXPECT_TRUE(refused("<!DOCTYPE spec [<!ENTITY % x SYSTEM '%2e%2e/secret.txt'>%x;]><spec/>"));
    EXPECT_TRUE(refused("<!DOCTYPE spec SYSTEM '" + path + "'><spec/>"));
    EXPECT_TRUE(refused("<!DOCTYPE spec [<!ENTITY % x SYSTEM '../secret.txt'>%x;]><spec/>"));
    EXPECT_TRUE(refused("<!DOCTYPE spec [<!ENTITY % x SYSTEM 'http://127.0.0.1/'>%x;]><spec/>"));
    ASSERT_TRUE(QFile::link(outside.toLocalFile(), files.path(u"maps/link.dtd"_s)));
    EXPECT_TRUE(refused("<!DOCTYPE spec SYSTEM 'link.dtd'><spec/>"));
    EXPECT_EQ(hostErrorOf([&] { open("<!DOCTYPE spec SYSTEM 'none.dtd'><spec/>"); }).kind,
              Kind::BadDTD);
}

TEST_F(HostXML, ReadsLocalFilesOnly)
{
    const auto kind = [](const QUrl &url) {
        return hostErrorOf([&] { HostXMLDocument::open(url); }).kind;
    };
    EXPECT_EQ(kind(QUrl(u"http://127.0.0.1:9/map.xml"_s)), Kind::Unreadable);
    EXPECT_EQ(kind(QUrl::fromLocalFile(files.path(u"none.xml"_s))), Kind::Unreadable);
    EXPECT_EQ(kind(QUrl::fromLocalFile(files.path())), Kind::Unreadable);
    EXPECT_EQ(kind(QUrl::fromLocalFile(u"/dev/zero"_s)), Kind::Unreadable);
    EXPECT_EQ(hostErrorOf([&] {
                  HostXMLDocument(HostXMLElement::element(u"spec"_s))
                      .attachDTD(QUrl(u"http://127.0.0.1:9/a.dtd"_s), u"spec"_s);
              }).kind,
              Kind::BadDTD);
}

TEST_F(HostXML, StopsEntitiesThatGrow)
{
    QByteArray laughs = "<!ENTITY a0 'ha'>";
    for (int i = 1; i < 30; ++i) {
        const QByteArray previous = "&a" + QByteArray::number(i - 1) + ";";
        laughs += "<!ENTITY a" + QByteArray::number(i) + " '" + previous.repeated(10) + "'>";
    }
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(
        openError(QByteArray(ownDTD).replace("%1", laughs) + "<spec><name>&a29;</name></spec>")
            .kind,
        Kind::NotWellFormed);
    // One entity of a megabyte, over and over: ten gigabytes from ten megabytes.
    const QByteArray big = "<!ENTITY b '" + QByteArray(1 << 20, 'x') + "'>";
    EXPECT_EQ(openError(QByteArray(ownDTD).replace("%1", big) + "<spec><name>" +
                        QByteArray("&b;").repeated(3 << 20) + "</name></spec>")
                  .kind,
              Kind::NotWellFormed);
    EXPECT_EQ(openError("<spec>" + QByteArray("<a>").repeated(100'000)).kind, Kind::NotWellFormed);
    EXPECT_EQ(
        openError("<!DOCTYPE spec [<!ENTITY a '&b;'><!ENTITY b '&a;'>]><spec>&a;</spec>").kind,
        Kind::NotWellFormed);
    EXPECT_LT(timer.elapsed(), 20'000);
}

TEST_F(HostXML, DistinguishesNodesByKindAndName)
{
    const auto document = HostXMLDocument::open(
        write(u"x.xml"_s, "<r xmlns='u' xmlns:p='v' p:a='1' a='2'> \n<p:e/>t<!--c--><?pi d?>"
                          "<![CDATA[d & ]]><e>x<b>y</b><!--z--></e></r>"));
    const auto root = *document.rootElement();
    const auto children = root.children();
    ASSERT_EQ(children.size(), 6U);
    EXPECT_EQ(children[0].name(), u"p:e");
    EXPECT_EQ(children[1].name(), std::nullopt);
    EXPECT_EQ(children[2].name(), std::nullopt);
    EXPECT_EQ(children[3].name(), u"pi");
    EXPECT_FALSE(children[3].isElement());
    EXPECT_EQ(children[4].stringValue(), u"d & ");
    EXPECT_EQ(children[5].stringValue(), u"xy");
    EXPECT_EQ(children[0].stringValue(), u"");
    using Pairs = std::vector<std::pair<QString, QString>>;
    EXPECT_EQ(
        root.attributes(),
        (Pairs{
            {u"xmlns"_s, u"u"_s}, {u"xmlns:p"_s, u"v"_s}, {u"p:a"_s, u"1"_s}, {u"a"_s, u"2"_s}}));
    EXPECT_EQ(root.attribute("a"), u"2");
    EXPECT_EQ(root.attribute("xmlns"), std::nullopt);
}
