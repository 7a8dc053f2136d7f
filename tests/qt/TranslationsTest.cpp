// The tables of texts, language by language, against the English one.
#include <QDir>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace sonavel {
namespace {

using Table = std::map<std::string, QString>;

Table tableIn(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QFile::ReadOnly)) << path.toStdString();
    QXmlStreamReader reader(&file);
    Table table;
    std::string key;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == u"message")
            key = reader.attributes().value(QStringLiteral("id")).toString().toStdString();
        if (reader.name() == u"translation") {
            EXPECT_FALSE(reader.attributes().hasAttribute(QStringLiteral("type"))) << key << " is unfinished";
            EXPECT_TRUE(table.emplace(key, reader.readElementText()).second) << key << " stands there twice";
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return table;
}

/// The placeholders in their order, and whether there is a shortcut letter and an ellipsis.
QString formOf(const QString& text)
{
    QString form;
    static const QRegularExpression mark(QStringLiteral("%[^ ]*[@di]|&(?=\\S)|…"));
    for (auto match = mark.globalMatch(text); match.hasNext();)
        form += match.next().captured() + u' ';
    return form;
}

class TranslationsTest : public testing::Test {
protected:
    const QDir folder{QStringLiteral(SONAVEL_TRANSLATIONS)};
    const Table english = tableIn(folder.filePath(QStringLiteral("sonavel_en.ts")));

    std::map<std::string, Table> tables()
    {
        std::map<std::string, Table> all;
        for (const QString& name : folder.entryList({QStringLiteral("*.ts")}))
            all.emplace(name.toStdString(), tableIn(folder.filePath(name)));
        return all;
    }
};

TEST_F(TranslationsTest, EveryLanguageHasTheSameTextsWithTheSamePlaceholders)
{
    EXPECT_EQ(tables().size(), 5U);
    for (const auto& [language, table] : tables()) {
        for (const auto& [key, text] : english) {
            const auto found = table.find(key);
            if (found == table.end()) {
                ADD_FAILURE() << language << " lacks " << key;
                continue;
            }
            EXPECT_FALSE(found->second.trimmed().isEmpty()) << language << ", " << key;
            EXPECT_EQ(formOf(found->second).toStdString(), formOf(text).toStdString()) << language << ", " << key;
        }
        for (const auto& [key, text] : table)
            EXPECT_TRUE(english.contains(key)) << language << " has " << key;
        EXPECT_NE(table.at("BUTTON_ADD"), table.at("BUTTON_EDIT")) << language << ": the sheet's two modes";
    }
}

TEST_F(TranslationsTest, NoTwoItemsOfAMenuShareTheirShortcutLetter)
{
    const std::vector<const char*> menus[] = {{"MENU_SONAVEL", "MENU_PLAYBACK", "MENU_STATIONS"},
        {"MENU_PLAY_PAUSE", "MENU_STOP", "MENU_MUTE", "MENU_PREVIOUS", "MENU_NEXT"},
        {"MENU_ADD", "MENU_EDIT", "MENU_REMOVE", "MENU_IMPORT", "MENU_EXPORT"}};
    for (const auto& [language, table] : tables())
        for (const auto& menu : menus) {
            std::map<QChar, const char*> letters;
            for (const char* key : menu) {
                const QString& text = table.at(key);
                const QChar letter = text.at(text.indexOf(u'&') + 1).toLower();
                EXPECT_TRUE(letters.emplace(letter, key).second)
                    << language << ": " << key << " and " << letters[letter];
            }
        }
}

} // namespace
} // namespace sonavel
