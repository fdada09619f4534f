#include "Tools/FeedFetcher.h"

#include <QCoreApplication>

#include <iostream>

/// Prints the document at an HTTPS address: `fetch_feed URL`. Status 1 where it cannot be had whole, 2 for
/// other arguments. Apart from the program, which would hold the network's libraries for a fetch in twelve
/// hours.
int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(TAVRIN_VERSION));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::cerr << "usage: fetch_feed URL\n";
        return 2;
    }
    const QUrl url(arguments[1]);
    const auto document = Tools::fetchFeed(url, Tools::FeedConnection::ofSystem(url));
    if (!document) {
        std::cerr << "fetch_feed: not fetched\n";
        return 1;
    }
    std::cout.write(document->constData(), document->size()).flush();
    return std::cout ? 0 : 1;
}
