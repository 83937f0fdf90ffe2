// Names "Save as ..." refuses: no file on any system a set may travel to.
#include <gtest/gtest.h>

#include "options/SetNames.h"

TEST(SetNames, RefusedNamesSayWhyAndOthersPass) {
    using Case = std::pair<std::string, std::string>;
    for (const auto& [name, problem] : {Case{"Dark Side", ""}, Case{"com0", ""}, Case{"console.set", ""},
                                        Case{"a\tb", "it holds a control character"},
                                        Case{"a\x7F", "it holds a control character"},
                                        Case{"a:b", "it holds the character :"}, Case{"a..b", "it holds \"..\""},
                                        Case{".secret", "it starts with a dot, which would hide the set"},
                                        Case{"Com1.old", "Windows keeps \"Com1\" for a device"},
                                        Case{"lpt9", "Windows keeps \"lpt9\" for a device"},
                                        Case{std::string(252, 'x'), "it is too long for a file name"}})
        EXPECT_EQ(brelk::options::setNameProblem(name).value_or(""), problem) << name;
}
