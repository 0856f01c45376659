// Prints the dictionary of a fuzz target: the words of its documents, from the field lists.
// SPDX-License-Identifier: Apache-2.0
#include <cstdio>
#include <cstring>
#include <set>
#include <string>

#include "support/AllRecords.h"

namespace
{

using Words = std::set<std::string>;

/// The names of the fields of all records of a format, and of their roots.
void AddNames(Words& words, bool isJson)
{
    const std::string before = isJson ? "\"" : "<";
    const std::string after = isJson ? "\":" : ">";
    for (const TestSupport::RecordClass& type : TestSupport::AllRecordTypes()) {
        if (type.IsJson() != isJson) {
            continue;
        }
        for (const std::string& name : type.names) {
            words.insert(before + name + after);
        }
        if (!type.root.empty()) {
            words.insert((isJson ? "{" : "") + before + type.root + after);
        }
    }
}

Words WordsOf(const std::string& target)
{
    const Words markup{"<a>",
                       "</a>",
                       "<a/>",
                       " opt='",
                       " attri='",
                       "<!--",
                       "-->",
                       "&#0;",
                       "&amp;",
                       "<![CDATA[",
                       "]]>",
                       "0xff",
                       " min='0'",
                       "true",
                       " max='1'",
                       "<!DOCTYPE ",
                       "<!ENTITY a 'b'>",
                       "4294967296"};
    const Words values{
        "\"id\":",          "true",      "null",      "1e400",   "-1", "[]",        "{}",
        "\"@opt\":[\"a\"]", "\"@min\":", "\"@max\":", "\\u0000", "//", "4294967296"};
    Words words;
    if (target == "Xml") {
        words = markup;
        AddNames(words, false);
    } else if (target == "Elements") {
        words = markup;
        words.insert({"<Min>1</Min>", "<Max>2</Max>", "<Default>", "<Range>1,2</Range>", "1,,2"});
    } else if (target == "Json") {
        words = values;
        AddNames(words, true);
    } else if (target == "Transparent" || target == "Refusal") {
        words = {"<ResponseStatus>", "</ResponseStatus>", "<statusCode>", "<subStatusCode>",
                 "deviceBusy",       "notSupport",        "\x1E",         "<errorCode>0x1",
                 "\"statusCode\":",  "\"errorCode\":",    "<!DOCTYPE "};
    } else if (target == "Profile") {
        words = values;
        for (const char* key :
             {"request", "file",  "setting", "status", "root",  "channels",  "merge",
              "values",  "pages", "search",  "item",   "list",  "filters",   "repeat",
              "each",    "cycle", "from",    "step",   "state", "recordings"}) {
            words.insert(std::string("\"") + key + "\":");
        }
        words.insert(
            {"\x1E", "{channel}", "{any}", "{n}", "deviceAbility 1", "\"a.xml\"", "PUT /"});
    } else if (target == "HttpAnswer") {
        words = {"HTTP/1.1 200 OK\r\n",
                 "HTTP/1.1 401 No\r\n",
                 "\r\n\r\n",
                 "Content-Length: ",
                 "Transfer-Encoding: chunked\r\n",
                 "\x1E",
                 "Connection: close\r\n",
                 "WWW-Authenticate: Digest realm=\"r\", nonce=\"n\"",
                 "qop=\"auth\"",
                 ", stale=true",
                 "algorithm=SHA-256",
                 "WWW-Authenticate: Basic realm=\"r\"\r\n",
                 "0\r\n\r\n",
                 "Content-Encoding: gzip\r\n"};
    }
    return words;
}

/// As libFuzzer's dictionaries have it.
void Print(const std::string& word)
{
    std::putchar('"');
    for (const char c : word) {
        if (std::strchr("\"\\", c) != nullptr) {
            std::printf("\\%c", c);
        } else if (static_cast<unsigned char>(c) < 0x20) {
            std::printf("\\x%02X", static_cast<unsigned>(c));
        } else {
            std::putchar(c);
        }
    }
    std::puts("\"");
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: fuzz_words TARGET\n", stderr);
        return 2;
    }
    for (const std::string& word : WordsOf(argv[1])) {
        Print(word);
    }
    return 0;
}
