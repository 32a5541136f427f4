// What is offered for what is typed, and in which order.
#include "session/insert_search.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace quendra::test {
namespace {

// These names in this order, each its own id.
InsertSearch searchOf(const std::vector<const char*>& names, const InsertionCounts& counts = {}) {
    std::vector<InsertSearch::Offer> offers;
    for (const char* name : names)
        offers.push_back({{}, name, QString::fromUtf8(name)});
    return {std::move(offers), counts};
}

std::string found(const InsertSearch& search, const char* typed) {
    std::string all;
    for (const std::size_t number : search.find(QString::fromUtf8(typed)))
        all += (all.empty() ? "" : "|") + search.offer(number).id;
    return all;
}

TEST(InsertSearch, FindsByWordsAnywhereAndByInitialsTheBestFirst) {
    const InsertSearch search = searchOf({"Wait", "Wait_For", "If_Input_Is", "PF1", "PF13", "PF3",
                                          "PF30", "Clear Screen", "Screen Clear Off", "Access",
                                          "Bildschirm löschen", "Große Übergabe", "Action ~"});
    const std::pair<const char*, const char*> rows[] = {
        {"pf3", "PF3|PF30"},
        {"PF 3", "PF3|PF30|PF13"},
        {"3", "PF3|PF30|PF13"},
        {"wait", "Wait|Wait_For"},
        {"wf", "Wait_For"},
        {"waitf", "Wait_For"},
        {"iii", "If_Input_Is"},
        {"CS", "Clear Screen"},
        {"scr cl", "Clear Screen|Screen Clear Off"},
        {"cl sc", "Clear Screen|Screen Clear Off"},
        {"ces", "Access"},
        {"  clear ", "Clear Screen|Screen Clear Off"},
        {"LÖSCH", "Bildschirm löschen"},
        {"losch", "Bildschirm löschen"},
        {"grosse ub", "Große Übergabe"},
        {"gü", "Große Übergabe"},
        {"~", "Action ~"},
        {"rs", ""},
        {"wait x", ""},
    };
    for (const auto& [typed, names] : rows)
        EXPECT_EQ(found(search, typed), names) << typed;
    EXPECT_EQ(search.find({}).size(), 13U) << "nothing typed";
}

TEST(InsertSearch, OffersFirstWhatIsInsertedMost) {
    InsertionCounts counts;
    for (const char* id : {"PF13", "PF2", "PF13", "Spf", "Spf", "Spf", "PF1x"})
        counts.add(id);
    const InsertSearch search = searchOf({"PF1", "PF2", "PF13", "PF1x", "Spf"}, counts);
    EXPECT_EQ(found(search, ""), "Spf|PF13|PF1x|PF2|PF1") << "the latest first among equals";
    EXPECT_EQ(found(search, "pf"), "PF13|PF1x|PF2|PF1|Spf") << "it only has it in the middle";
    EXPECT_EQ(found(search, "pf1"), "PF1|PF13|PF1x") << "called just so";
}

TEST(InsertSearch, RemembersCountsFromRunToRunAndDropsWhatIsNoCount) {
    const TemporaryFolder folder;
    const auto file = folder / "state.ini";
    InsertionCounts counts;
    for (int i = 0; i < 120; ++i)
        counts.add("n" + std::to_string(i));
    counts.add("n119");
    UserState written(file);
    counts.writeTo(written);
    const InsertionCounts read = InsertionCounts::readFrom(UserState(file));
    EXPECT_EQ(read.placeOf("n119"), 0U);
    EXPECT_EQ(read.placeOf("n118"), counts.placeOf("n118"));
    EXPECT_EQ(read.placeOf("n0"), UserState::mostTexts) << "one of too many";
    UserState odd;
    odd.setTexts({"Insert", "Used"}, {"-1 a", "b", "7", "3 c d", "99999999999 e", "4 f"});
    const InsertionCounts kept = InsertionCounts::readFrom(odd);
    EXPECT_EQ(kept.placeOf("f"), 0U);
    EXPECT_EQ(kept.placeOf("c d"), 1U);
    EXPECT_EQ(kept.placeOf("a"), 2U);
}

}  // namespace
}  // namespace quendra::test
