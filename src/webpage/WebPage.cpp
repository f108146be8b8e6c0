#include "webpage/WebPage.h"

#include "common/BufferedOutput.h"
#include "webpage/HtmlText.h"
#include "webpage/PageStyles.h"
#include "webpage/PageTable.h"

#include <QFileInfo>
#include <QLocale>

namespace schedules {

namespace {

std::string LanguageAttributes(const QString& language)
{
    if (language.isEmpty())
        return {};
    const bool isLeftwards = QLocale(language).textDirection() == Qt::RightToLeft;
    return " lang=\"" + HtmlOf(language.toStdString()) + "\" dir=\"" + (isLeftwards ? "rtl" : "ltr") + '"';
}

std::string TitleOf(const PageInfo& page, const QString& fileName)
{
    const QString title = page.title.trimmed().isEmpty() ? QFileInfo(fileName).completeBaseName() : page.title;
    return HtmlOf(title.toStdString());
}

std::string Head(const PageInfo& page, const std::string& title, const PageStyles& styles)
{
    return "<!DOCTYPE html>\n<html" + LanguageAttributes(page.language) +
           ">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>" +
           title + "</title>\n<style>" + styles.Rules() + "</style>\n</head>\n";
}

} // namespace

void WriteWebPage(const Sheet& sheet, const PageInfo& page, const QString& fileName)
{
    const std::string title = TitleOf(page, fileName);
    const PageStyles styles(sheet);
    ReplaceFile(fileName, [&](QFileDevice& file) {
        BufferedOutput output(file);
        output.Text() += Head(page, title, styles);
        output.Text() +=
            "<body>\n<div class=\"page\" role=\"region\" aria-labelledby=\"title\" tabindex=\"0\">\n<table>\n";
        output.Text() += "<caption id=\"title\">" + title + "</caption>\n";
        PageTable(sheet, page, styles, output).Write();
        output.Text() += "</table>\n</div>\n</body>\n</html>\n";
        output.Flush();
    });
}

} // namespace schedules
