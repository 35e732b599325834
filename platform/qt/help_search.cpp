#include "platform/qt/help_search.h"

#include <QHelpEngineCore>
#include <QRegularExpression>
#include <QTextDocument>

#include <algorithm>

namespace corvanta {

namespace {

constexpr int inTitle = 1000; // worth as many places in the text

std::vector<QRegularExpression> patternsOf(const QString &words)
{
    std::vector<QRegularExpression> patterns;
    for (const QString &word : words.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts))
        patterns.emplace_back(QStringLiteral("(?<!\\w)") + QRegularExpression::escape(word),
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::UseUnicodePropertiesOption);
    return patterns;
}

// 0 when a word is missing.
int worth(const QString &title, const QString &text, const std::vector<QRegularExpression> &patterns)
{
    int sum = 0;
    for (const QRegularExpression &pattern : patterns) {
        const int places = static_cast<int>(text.count(pattern)) + (title.contains(pattern) ? inTitle : 0);
        if (places == 0)
            return 0;
        sum += places;
    }
    return sum;
}

} // namespace

void HelpSearch::readPages()
{
    for (const QUrl &url : engine.files(QStringLiteral("corvanta"), QString(), QStringLiteral("html"))) {
        QTextDocument document;
        document.setHtml(QString::fromUtf8(engine.fileData(url)));
        pages.push_back({{document.metaInformation(QTextDocument::DocumentTitle), url}, document.toPlainText()});
    }
}

std::vector<HelpHit> HelpSearch::find(const QString &words)
{
    if (pages.empty())
        readPages();
    const auto patterns = patternsOf(words);
    std::vector<std::pair<int, const Page *>> found;
    for (const Page &page : pages)
        if (const int places = worth(page.hit.title, page.text, patterns))
            found.emplace_back(places, &page);
    std::ranges::stable_sort(found, std::ranges::greater(), &std::pair<int, const Page *>::first);
    std::vector<HelpHit> hits;
    hits.reserve(found.size());
    for (const auto &[places, page] : found)
        hits.push_back(page->hit);
    return hits;
}

} // namespace corvanta
