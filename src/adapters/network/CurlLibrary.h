// libcurl, loaded while the program runs.
#pragma once

#include <curl/curl.h>

namespace sonavel {

/// The functions of libcurl that are used. Linked in the usual way, the library and the thirty that it needs would be
/// there before the first line of the program, which delays every start by an eighth.
struct CurlLibrary {
    decltype(&curl_easy_init) easyInit;
    decltype(&curl_easy_cleanup) easyCleanup;
    decltype(&curl_easy_setopt) easySetopt;
    decltype(&curl_easy_perform) easyPerform;
    decltype(&curl_easy_strerror) easyStrerror;
    decltype(&curl_slist_append) slistAppend;
    decltype(&curl_slist_free_all) slistFreeAll;

    /// Loads it at the first call, which takes some milliseconds; others that call meanwhile wait. Null when it cannot
    /// be had. May be called on any thread.
    [[nodiscard]] static const CurlLibrary* shared();
};

} // namespace sonavel
