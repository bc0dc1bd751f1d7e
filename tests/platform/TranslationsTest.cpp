// SPDX-License-Identifier: Apache-2.0
#include <support/Test.h>

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <map>

#include <Tavrin/model/SpecificationEntryType.h>
#include <Tavrin/platform/StringLocalizer.h>
#include <Tavrin/platform/Translations.h>

namespace
{

const QStringList languages{u"de"_s, u"en"_s};

struct Message {
    QString context;
    QString source;
    QString comment;
    QString translation;
    /// Empty for a message that is done.
    QString state;
};

/// The messages of a file of translations, by source and comment.
std::map<QString, Message> messages(const QString &language)
{
    QFile file(QStringLiteral(TAVRIN_TRANSLATIONS "/tavrin_%1.ts").arg(language));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    QXmlStreamReader xml(&file);
    std::map<QString, Message> result;
    Message message;
    QString context;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isEndElement() && xml.name() == "message"_L1)
            result[message.source + u'\n' + message.comment] = message;
        if (!xml.isStartElement())
            continue;
        if (xml.name() == "message"_L1)
            message = {context, {}, {}, {}, {}};
        else if (xml.name() == "name"_L1)
            context = xml.readElementText();
        else if (xml.name() == "source"_L1)
            message.source = xml.readElementText();
        else if (xml.name() == "comment"_L1)
            message.comment = xml.readElementText();
        else if (xml.name() == "translation"_L1) {
            message.state = xml.attributes().value(u"type"_s).toString();
            message.translation = xml.readElementText();
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return result;
}

/// What a program fills in: "%1", "%@".
QStringList placeholders(const QString &text)
{
    static const QRegularExpression placeholder(u"%(?:\\d+|[@n])"_s);
    QStringList result;
    for (auto matches = placeholder.globalMatch(text); matches.hasNext();)
        result.append(matches.next().captured());
    result.sort();
    return result;
}

} // namespace

TEST(Translations, LackNeitherATextNorAPlaceholder)
{
    for (const QString &language : languages) {
        const auto all = messages(language);
        EXPECT_GT(all.size(), 30U);
        for (const auto &[key, message] : all) {
            SCOPED_TRACE((language + u": "_s + message.source).toStdString());
            EXPECT_EQ(message.context, u"Tavrin"_s) << "no other context is looked up";
            EXPECT_EQ(message.state, QString());
            EXPECT_FALSE(message.translation.trimmed().isEmpty());
            EXPECT_EQ(placeholders(message.translation), placeholders(message.source));
        }
    }
}

TEST(Translations, AreOfTheSameTextsInEachLanguage)
{
    const auto keys = [](const QString &language) {
        QStringList result;
        for (const auto &[key, message] : messages(language))
            result.append(key);
        return result;
    };
    EXPECT_EQ(keys(u"de"_s), keys(u"en"_s));
}

TEST(Translations, AreFoundForALocaleAndLeaveWithTheirTranslator)
{
    EXPECT_EQ(description(SpecificationEntryType::Table), u"Table"_s);
    for (const char *name : {"de_DE", "de_AT", "de"}) {
        const auto german = installTranslations(QLocale(QLatin1String(name)));
        ASSERT_TRUE(german) << name;
        EXPECT_EQ(description(SpecificationEntryType::Table), u"Tabelle"_s);
        EXPECT_EQ(localized("Label", "spec entry field"), u"Kennung"_s);
        EXPECT_EQ(localized("No such text", "a test"), u"No such text"_s);
    }
    EXPECT_EQ(description(SpecificationEntryType::Table), u"Table"_s);
    EXPECT_TRUE(installTranslations(QLocale(u"en_GB"_s)));
    EXPECT_FALSE(installTranslations(QLocale(u"fr_FR"_s)));
    EXPECT_FALSE(installTranslations(QLocale::c()));
}
