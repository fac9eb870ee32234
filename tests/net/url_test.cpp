#include "net/url.h"

#include <gtest/gtest.h>

namespace kalvo::net {
namespace {

TEST(IsValidUrlTest, TakesAddressesThatARequestCanBeSentTo) {
    for (const char* text :
         {"https://host", "https://host:8443/path?query=Rome%20&%20co", "https://host/münchen"}) {
        EXPECT_TRUE(isValidUrl(text)) << text;
    }
    for (const char* text : {"", "host", "https:", "https:/path", "https:https://host/path",
                             "https:////host/path", "https://host/a b", "https://host/a\nb",
                             "https://host/<a>", "https://host/50%", "https://ho st/"}) {
        EXPECT_FALSE(isValidUrl(text)) << text;
    }
    const std::string longest = "https://host/" + std::string(8192 - 13, 'x');
    EXPECT_TRUE(isValidUrl(longest));
    EXPECT_FALSE(isValidUrl(longest + "x"));
}

TEST(PercentEncodedQueryTest, EscapesWhatAQueryCannotHoldAndRefusesWhatIsNotUtf8) {
    EXPECT_EQ(percentEncodedQuery("aZ09-._~!$&'()*+,;=:@/?"), "aZ09-._~!$&'()*+,;=:@/?");
    EXPECT_EQ(percentEncodedQuery("\"#%<>[\\]^`{|}\nà"),
              "%22%23%25%3C%3E%5B%5C%5D%5E%60%7B%7C%7D%0A%C3%A0");
    EXPECT_EQ(percentEncodedQuery(""), "");
    EXPECT_EQ(percentEncodedQuery("citt\xE0"), std::nullopt);
}

}  // namespace
}  // namespace kalvo::net
