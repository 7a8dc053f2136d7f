#include "server/PublishedVersion.h"

namespace sonavel {

namespace {

std::string joined(const std::vector<std::string>& notes)
{
    std::string text;
    for (const std::string& note : notes)
        text.append(text.empty() ? "" : "\\n").append(note);
    return text;
}

} // namespace

std::string versionResponse(const PublishedVersion& published, const std::string& baseAddress)
{
    const auto orOwn = [&](const std::string& address) { return address.empty() ? baseAddress : address; };
    // Players count the values; the words before them are for people.
    return "name;Sonavel\rversion;" + published.version + "\rbuild;" + published.build + "\rapplication;"
        + orOwn(published.application) + "\rpage;" + orOwn(published.page) + "\rnotes;" + joined(published.notes)
        + "\rreleased;" + published.released + "\rlist changed;" + published.listChanged + '\r';
}

} // namespace sonavel
