// SPDX-License-Identifier: Apache-2.0
// What it costs to make 200 maps of 1,000 entries known, against what the XML parser alone needs
// to parse and validate the same files once.
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>
#include <stdexcept>
#include <vector>

#include <Tavrin/manager/SpecificationManager.h>
#include <Tavrin/model/Specification.h>

#include <support/BareXML.h>
#include <support/Figures.h>
#include <support/RatioBenchmark.h>

namespace Tavrin::Benchmarks
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int mapCount = 200;
constexpr int entryCount = 1000;

/// A directory of maps, each with the grammar beside it under its own name.
class MapDirectory
{
public:
    MapDirectory()
    {
        QFile grammar(QStringLiteral(TAVRIN_SAMPLES "/spec.dtd"));
        if (!grammar.open(QIODevice::ReadOnly))
            throw std::runtime_error("the grammar of maps is missing");
        const QByteArray dtd = grammar.readAll();
        for (int number = 0; number < mapCount; ++number) {
            write(u"%1.dtd"_s.arg(number), dtd);
            write(u"%1.xml"_s.arg(number), mapText(number));
        }
    }

    QUrl url() const { return QUrl::fromLocalFile(m_directory.path()); }
    QString path(const QString &name) const { return m_directory.filePath(name); }

private:
    static QByteArray mapText(int number)
    {
        const auto map = Specification::make<Specification>();
        map->setTitle(u"Specification %1"_s.arg(number));
        map->setIdentifier(QString::number(number));
        for (int i = 0; i < entryCount; ++i) {
            auto entry = std::make_shared<SpecificationEntry>(
                map, u"%1.%2"_s.arg(i / 20).arg(i % 20), u"Title of the entry number %1"_s.arg(i),
                SpecificationEntryType::Section, std::vector<int>{i / 20, i % 20});
            entry->setKeywords({u"alpha"_s, u"beta gamma"_s, u"delta"_s});
            entry->setRelatedEntries({u"1.1"_s, u"1.2"_s});
            map->add(entry);
        }
        return map->writeSpecToXMLString({}).toUtf8();
    }

    void write(const QString &name, const QByteArray &text) const
    {
        QFile file(m_directory.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            throw std::runtime_error("a map can't be written");
    }

    QTemporaryDir m_directory;
};

void parseAll(const MapDirectory &maps)
{
    for (int number = 0; number < mapCount; ++number)
        parseAndValidate(maps.path(u"%1.xml"_s.arg(number)), maps.path(u"%1.dtd"_s.arg(number)));
}

void registerMaps(const MapDirectory &maps)
{
    SpecificationManager manager;
    manager.loadSpecInformation(maps.url());
    if (manager.specifications().size() != mapCount)
        throw std::runtime_error("not all maps are known");
}

} // namespace

void registerRegisterMapsFigures()
{
    const auto maps = std::make_shared<MapDirectory>();
    registerRatio({.name = "register 200 maps / parse and validate them once",
                   .limit = 2.5,
                   .floor = [maps] { parseAll(*maps); },
                   .measured = [maps] { registerMaps(*maps); }});
}

} // namespace Tavrin::Benchmarks
