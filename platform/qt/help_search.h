#pragma once

#include <QString>
#include <QUrl>

#include <vector>

class QHelpEngineCore;

namespace corvanta {

struct HelpHit {
    QString title;
    QUrl page;
};

// Full-text search over the pages of a help collection. The toolkit's own search engine keeps its index beside the
// collection, which may be read-only, and is not ready when the first word is typed; the pages are few and small.
class HelpSearch {
public:
    explicit HelpSearch(QHelpEngineCore &source) : engine(source) {}

    // The pages that hold every word of a text, or words that begin so; those with the words in their title first, then
    // by the number of places. Empty for a text without words. Pages are read at the first search.
    std::vector<HelpHit> find(const QString &words);

private:
    struct Page {
        HelpHit hit;
        QString text;
    };

    void readPages();

    QHelpEngineCore &engine;
    std::vector<Page> pages;
};

} // namespace corvanta
