#include "page/BoxScoreList.h"

#include "page/PageFrame.h"

namespace iceline {

std::string boxScoreListHead() {
    PageText page;
    page.add(PageFrame{"Rinkstar - Box Scores"}.text());
    page.line(headerImage("Headers/", "BoxScores"));
    page.line("<table border =1><tr><th>#</th><th>Type</th><th>Game Result</th></tr>");
    return page.text();
}

} // namespace iceline
