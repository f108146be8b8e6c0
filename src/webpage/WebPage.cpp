#include "webpage/WebPage.h"

#include "common/BufferedOutput.h"
#include "webpage/HtmlText.h"
#include "webpage/PageStyles.h"
#include "webpage/PageTable.h"
#include "webpage/PaperColumns.h"

#include <QFileInfo>

namespace schedules {

namespace {

std::string RootAttributes(const PageInfo& page)
{
    const std::string language = page.language.isEmpty() ? "" : " lang=\"" + HtmlOf(page.language.toStdString()) + '"';
    return language + (page.direction == Qt::RightToLeft ? " dir=\"rtl\"" : " dir=\"ltr\"");
}

std::string TitleOf(const PageInfo& page, const QString& fileName)
{
    const QString title = page.title.trimmed().isEmpty() ? QFileInfo(fileName).completeBaseName() : page.title;
    return HtmlOf(title.toStdString());
}

std::string Head(const PageInfo& page, const std::string& title, const std::string& rules)
{
    return "<!DOCTYPE html>\n<html" + RootAttributes(page) +
           ">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>" +
           title + "</title>\n<style>" + rules + "</style>\n</head>\n";
}

/// Writes the tables of a page: the one for the screen, and those for paper if it takes several.
class PageBody
{
public:
    PageBody(const Sheet& sheet, const PageInfo& page, const PageStyles& styles, BufferedOutput& output)
        : m_sheet(sheet), m_page(page), m_styles(styles), m_output(output)
    {
    }

    void Write(const PaperColumns& paper, const std::string& title)
    {
        const bool isOneTable = paper.groups.size() == 1;
        m_output.Text() += "<body>\n<section class=\"page\" aria-labelledby=\"title\" tabindex=\"0\">\n";
        WriteTable(ShownColumns(m_sheet), isOneTable ? GroupClass(0) : "all", "<caption id=\"title\">" + title);
        m_output.Text() += "</section>\n";
        if (!isOneTable)
            WriteGroups(paper.groups, title);
        m_output.Text() += "</body>\n</html>\n";
    }

private:
    void WriteGroups(const std::vector<ColumnGroup>& groups, const std::string& title)
    {
        m_output.Text() += "<div class=\"paper\">\n";
        for (std::size_t number = 0; number < groups.size(); ++number) {
            const std::string place = std::to_string(number + 1) + "/" + std::to_string(groups.size());
            WriteTable(groups[number].columns, GroupClass(number), "<caption>" + title + " (" + place + ")");
        }
        m_output.Text() += "</div>\n";
    }

    void WriteTable(const std::vector<Column>& columns, const std::string& groupClass, const std::string& caption)
    {
        const bool hasRowHeaders = !columns.empty() && columns.front() == Column(0);
        std::string& text = m_output.Text();
        text +=
            "<table class=\"" + groupClass + (hasRowHeaders ? " r" : "") + "\">\n" + caption + "</caption>\n<colgroup>";
        for (std::size_t column = 0; column < columns.size(); ++column)
            text += "<col>";
        text += "</colgroup>\n";
        PageTable(m_sheet, m_page, m_styles, columns, m_output).Write();
        text += "</table>\n";
    }

    const Sheet& m_sheet;
    const PageInfo& m_page;
    const PageStyles& m_styles;
    BufferedOutput& m_output;
};

} // namespace

void WriteWebPage(const Sheet& sheet, const PageInfo& page, const QString& fileName)
{
    const std::string title = TitleOf(page, fileName);
    const PageStyles styles(sheet);
    const PaperColumns paper = PaperColumnsOf(sheet);
    ReplaceFile(fileName, [&](QFileDevice& file) {
        BufferedOutput output(file);
        output.Text() += Head(page, title, styles.Rules() + PageStyles::PaperRules(paper));
        PageBody(sheet, page, styles, output).Write(paper, title);
        output.Flush();
    });
}

} // namespace schedules
