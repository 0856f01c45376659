// The shapes a search begins with: every construct of a format, repeated.
// SPDX-License-Identifier: Apache-2.0
#include "fuzz/cost/Grammar.h"

namespace Cost
{
namespace
{

/// Repeated inside the root element.
const std::vector<Repeat> kXmlContent = {
    {"<a/>"},
    {"<a\x1f/>"},
    {"<a>1</a>"},
    {"<a>", "</a>"},
    {"<a\x1f>", "</a\x1f>"},
    {"<!-- c -->"},
    {"<!---->"},
    {"<![CDATA[x]]>"},
    {"<![CDATA[]]>x"},
    {"<?p x?>"},
    {"&amp;"},
    {"&#10;"},
    {"&#x10FFFF;"},
    {"&#0000000000000000000000000000000000065;"},
    {" "},
    {"\n"},
    {"x"},
    {"\xe4\xb8\xad"},
    {"<a xml:id='i\x1f'/>"},
    {"<a id='i\x1f'/>"},
    {"<a xmlns='u\x1f'/>"},
    {"<a xmlns:p\x1f='u'/>"},
    {"<p\x1f:a xmlns:p\x1f='u\x1f'/>"},
    {"<a xmlns:p\x1f='u'>", "</a>"},
    {"<a xmlns='u\x1f'>", "</a>"},
    {"<p:a/>"},
    {"<a b='1' c='2' d='3' e='4' f='5' g='6' h='7'/>"},
    {"<a opt='x\x1f,y,z'/>"},
    {"<a xml:space='preserve'> </a>"},
    {"<a xml:lang='en' xml:base='u'/>"},
    {"&u\x1f;"},
    {"<a>\x1f</a>"},
    {"<a>12345678901234567890123456789012345678901234567890</a>"},
    {"<a>0.0000000000000000000000000000000000000000001e-300</a>"},
};

/// Repeated inside one start tag.
const std::vector<Repeat> kXmlAttributes = {
    {" a\x1f='1'"},          {" a\x1f=''"},      {" xmlns:p\x1f='u'"}, {" p\x1f:a='1'"},
    {" a='&lt;&#10;&amp;'"}, {" a\x1f='\n\t '"}, {" xml:a\x1f='1'"},
};

/// Repeated inside one attribute's value or one element's name.
const std::vector<Repeat> kXmlValue = {
    {"x"}, {","}, {"a,"}, {"o\x1f,"}, {"&amp;"}, {"&#13;"}, {" "}, {"\n"}, {"&e;"}, {"\xc2\x9b"},
};

/// Repeated inside a document type declaration.
const std::vector<Repeat> kXmlSubset = {
    {"<!ATTLIST r a\x1f ID #IMPLIED>"},
    {"<!ATTLIST r a\x1f (x|y) 'x'>"},
    {"<!ATTLIST r\x1f a CDATA 'x'>"},
    {"<!ENTITY e\x1f 'x'>"},
    {"<!ENTITY % e\x1f 'x'>"},
    {"<!ENTITY e\x1f SYSTEM 'f'>"},
    {"<!NOTATION n\x1f SYSTEM 'f'>"},
    {"<!ELEMENT e\x1f (a,b,c)>"},
    {"<!ELEMENT e\x1f (a|b)*>"},
    {"<!-- c -->"},
    {"<?p x?>"},
    {"%e;"},
    {" "},
};

const std::vector<Repeat> kXmlDeclarationParts = {
    {"<!ATTLIST r", ">"},
    {" a\x1f ID #IMPLIED"},
    {" a\x1f (x\x1f|y) #IMPLIED"},
    {" a\x1f NMTOKENS #REQUIRED"},
    {"|x\x1f"},
    {",(x\x1f"},
    {"(", ")"},
    {" a CDATA #FIXED 'x'"},
};

const std::vector<const char*> kEncodings = {"GBK",    "GB18030",     "Big5",  "ISO-8859-1",
                                             "UTF-16", "UTF-32",      "UTF-7", "HZ",
                                             "EUC-JP", "ISO-2022-JP", "HTML",  "ASCII"};

/// Repeated in place of a JSON value, entry or member.
const std::vector<Repeat> kJsonValues = {
    {"0,"},
    {"{},"},
    {"[],"},
    {"null,"},
    {"\"\","},
    {"\"\\u4e2d\","},
    {"\"\\ud83d\\ude00\\n\","},
    {"-1.5e-300,"},
    {"123456789012345678901234567890,"},
    {"1e308,"},
    {"true,"},
    {"[", "],"},
    {"{\"a\":", "},"},
    {"/**/"},
    {"1/**/,/**/"},
    {"//\n"},
    {" "},
    {"\n"},
    {"{\"id\":\x1f},"},
    {"{\"id\":\x1f,\"name\":\"n\x1f\"},"},
};

const std::vector<Repeat> kJsonMembers = {
    {"\"a\x1f\":0,"},  {"\"a\":0,"},       {"\"a\":{\"b\":", "},"},  {"\"\":null,"},
    {"\"a\x1f\":[],"}, {"\"\\u0061\":1,"}, {"/**/\"a\x1f\":1/**/,"},
};

void Add(std::vector<Shape>& shapes, const std::string& head, const std::vector<Repeat>& repeats,
         const std::string& tail)
{
    for (const Repeat& repeat : repeats) {
        shapes.push_back({head, {repeat}, tail});
    }
}

}  // namespace

std::vector<Shape> XmlShapes(const std::string& root)
{
    std::vector<Shape> shapes;
    const std::string open = "<" + root + ">";
    const std::string close = "</" + root + ">";
    Add(shapes, open, kXmlContent, close);
    Add(shapes, open + "<a>", kXmlContent, "</a>" + close);
    Add(shapes, "<" + root, kXmlAttributes, ">" + close);
    Add(shapes, open + "<a", kXmlAttributes, "/>" + close);
    Add(shapes, open + "<a opt='", kXmlValue, "'/>" + close);
    Add(shapes, open + "<a", kXmlValue, "/>" + close);
    Add(shapes, "<!DOCTYPE " + root + " [", kXmlSubset, "]>" + open + close);
    Add(shapes, "<!DOCTYPE " + root + " [<!ATTLIST r", kXmlDeclarationParts, ">]>" + open + close);
    Add(shapes, "<!DOCTYPE " + root + " [<!ELEMENT r (x", kXmlDeclarationParts,
        ")>]>" + open + close);
    Add(shapes, "<!DOCTYPE " + root + " [<!ENTITY e '", kXmlValue, "'>]>" + open + "&e;" + close);
    Add(shapes, "", {{" "}, {"<!-- c -->"}, {"<?p x?>"}, {"\n"}}, open + close);
    Add(shapes, open + close, {{" "}, {"<!-- c -->"}, {"<?p x?>"}, {"x"}}, "");
    for (const char* encoding : kEncodings) {
        const std::string declaration =
            std::string("<?xml version='1.0' encoding='") + encoding + "'?>";
        Add(shapes, declaration + open, {{"x"}, {"\x81\x30\x81\x30"}, {"\xff"}, {"\xb0\xa1"}},
            close);
    }
    return shapes;
}

std::vector<Shape> JsonShapes(const std::string& key)
{
    std::vector<Shape> shapes;
    const std::string open = key.empty() ? std::string() : "{\"" + key + "\":";
    const std::string close = key.empty() ? std::string() : "}";
    Add(shapes, open + "[", kJsonValues, "0]" + close);
    Add(shapes, open + "{", kJsonMembers, "\"z\":0}" + close);
    Add(shapes, open + "{\"List\":[", kJsonValues, "0]}" + close);
    Add(shapes, open + "{\"a\":1", {{"/**/"}, {"//\n"}, {" "}, {"/**//**/"}}, "}" + close);
    Add(shapes, open + "\"", {{"x"}, {"\\n"}, {"\\u0000"}, {"\\\\"}, {"\xe4\xb8\xad"}},
        "\"" + close);
    Add(shapes, open, {{"1"}, {"-"}, {"0."}, {"1e"}, {"9"}}, close);
    Add(shapes, "", {{"/**/"}, {"//\n"}, {" "}}, open + "{}" + close);
    Add(shapes, open + "{}" + close, {{"/**/"}, {"{}"}, {" "}, {"x"}}, "");
    return shapes;
}

std::vector<Shape> HttpShapes()
{
    std::vector<Shape> shapes;
    const std::string ok = "HTTP/1.1 200 OK\r\n";
    const std::string refusal = "HTTP/1.1 403 Forbidden\r\n";
    Add(shapes, ok, {{"a: b\r\n"}, {"a\x1f: b\r\n"}, {"Set-Cookie: a\x1f=b\r\n"}, {" folded\r\n"}},
        "Content-Length: 0\r\n\r\n");
    Add(shapes, ok + "a: ", {{"x"}, {" "}, {"\t"}}, "\r\nContent-Length: 0\r\n\r\n");
    Add(shapes, "", {{"HTTP/1.1 100 Continue\r\n\r\n"}, {"HTTP/1.1 102 Wait\r\n\r\n"}},
        ok + "Content-Length: 0\r\n\r\n");
    Add(shapes, "HTTP/1.1 401 No\r\nWWW-Authenticate: Digest ",
        {{"realm=\"a\", "}, {"a\x1f=\"b\", "}, {"nonce=\"\\\"\", "}, {","}, {" "}, {"qop=auth,"}},
        "nonce=\"a\"\r\nContent-Length: 0\r\n\r\n");
    Add(shapes, "HTTP/1.1 401 No\r\n",
        {{"WWW-Authenticate: Digest realm=\"a\x1f\", nonce=\"b\"\r\n"},
         {"WWW-Authenticate: Basic realm=\"a\"\r\n"},
         {"WWW-Authenticate: Scheme\x1f\r\n"}},
        "Content-Length: 0\r\n\r\n");
    Add(shapes, ok + "Transfer-Encoding: chunked\r\n\r\n",
        {{"1\r\na\r\n"}, {"1;e=\x1f\r\na\r\n"}, {"0000000001\r\na\r\n"}}, "0\r\n\r\n");
    Add(shapes, ok + "Transfer-Encoding: chunked\r\n\r\n0\r\n", {{"a\x1f: b\r\n"}}, "\r\n");
    Add(shapes, ok + "\r\n", {{"x"}, {"<a/>"}, {"{}"}, {std::string(1, '\0')}}, "");
    for (const Shape& body : XmlShapes("ResponseStatus")) {
        shapes.push_back({refusal + "\r\n" + body.head, body.repeats, body.tail});
    }
    for (const Shape& body : JsonShapes("")) {
        shapes.push_back({refusal + "\r\n" + body.head, body.repeats, body.tail});
    }
    return shapes;
}

std::vector<Shape> TextShapes()
{
    std::vector<Shape> shapes;
    Add(shapes, "",
        {{"x"},
         {"&"},
         {"<"},
         {"%"},
         {"%%"},
         {"%d"},
         {"%-+ #0"},
         {"\""},
         {"\\"},
         {"\n"},
         {"\x01"},
         {"\xef\xbf\xbe"},
         {"\xef\xbf\xbf"},
         {"\xed\xa0\x80"},
         {"\xff"},
         {"\xe4\xb8\xad"},
         {"\xf0\x9f\x98\x80"},
         {"\xc2\x9b"},
         {"]]>"},
         {"&#x0;"}},
        "");
    return shapes;
}

std::vector<std::string> XmlWords()
{
    std::vector<std::string> words = {"<",  ">",  "/>",   "</", "<!",      "]]>",   "<!DOCTYPE r [",
                                      "]>", "='", "'",    "&",  ";",       "xmlns", "xml:id",
                                      ":",  "%",  "true", "1",  "version", "opt"};
    for (const auto* group :
         {&kXmlContent, &kXmlAttributes, &kXmlValue, &kXmlSubset, &kXmlDeclarationParts}) {
        for (const Repeat& repeat : *group) {
            words.push_back(repeat.open);
        }
    }
    return words;
}

std::vector<std::string> JsonWords()
{
    std::vector<std::string> words = {"{", "}", "[", "]", ":", ",", "\"", "\\", "/*", "*/", "//"};
    for (const auto* group : {&kJsonValues, &kJsonMembers}) {
        for (const Repeat& repeat : *group) {
            words.push_back(repeat.open);
        }
    }
    return words;
}

std::vector<std::string> HttpWords()
{
    return {"\r\n",
            "\r\n\r\n",
            ": ",
            ",",
            "\"",
            "=",
            " ",
            "\t",
            "HTTP/1.1 ",
            "200",
            "401",
            "500",
            "100",
            "302",
            "Content-Length: 5\r\n",
            "Transfer-Encoding: chunked\r\n",
            "Connection: close\r\n",
            "Location: /\r\n",
            "Content-Encoding: gzip\r\n",
            "Content-Range: bytes 0-1/2\r\n",
            "WWW-Authenticate: Digest ",
            "realm=\"a\"",
            "nonce=\"b\"",
            "algorithm=MD5-sess",
            "stale=true"};
}

}  // namespace Cost
