#include <ox/display/ox_debug.h>

#include <tests/display/gl_call_recorder.h>

#include <gmock/gmock.h>

#include <string>
#include <type_traits>
#include <vector>

namespace {

using namespace ox;
using testing::ElementsAre;
using testing::IsEmpty;

/// A node that writes down its title when it is destroyed.
class watched_node : public ox_debug {
public:
    watched_node(const std::string& name, std::vector<std::string>& destroyed) : log(destroyed) {
        title = name;
    }
    ~watched_node() override { log.push_back(title); }

    watched_node(const watched_node&) = delete;
    watched_node& operator=(const watched_node&) = delete;

private:
    std::vector<std::string>& log;
};

ox_test::gl_calls drawing_calls(const ox_debug& node) {
    return ox_test::calls_of([&] { node.shapes.draw_opengl(); });
}

TEST(OxDebug, ANewNodeHasEmptyTextsNoChildrenAndNoShapes) {
    const ox_debug node;
    EXPECT_EQ(node.title, "");
    EXPECT_EQ(node.text, "");
    EXPECT_EQ(node.children.size(), 0);
    EXPECT_THAT(drawing_calls(node), IsEmpty());
}

TEST(OxDebug, ItsFieldsAreTitleTextChildrenAndShapesInThatOrder) {
    const ox_debug node;
    const void* fields[] = {&node.title, &node.text, &node.children, &node.shapes};
    EXPECT_LT(static_cast<const void*>(&node), fields[0]);
    EXPECT_LT(fields[0], fields[1]);
    EXPECT_LT(fields[1], fields[2]);
    EXPECT_LT(fields[2], fields[3]);
    EXPECT_TRUE(std::has_virtual_destructor_v<ox_debug>);
}

TEST(OxDebug, ADestroyedNodeDestroysItsChildrenInOrderThroughTheirVirtualDestructor) {
    std::vector<std::string> destroyed;
    {
        ox_debug node;
        node.children.push_right(new watched_node("a", destroyed));
        node.children.push_right(new watched_node("b", destroyed));
        node.children.push_right(new watched_node("c", destroyed));
    }
    EXPECT_THAT(destroyed, ElementsAre("a", "b", "c"));
}

TEST(OxDebug, AParentIsDestroyedBeforeItsChildrenAndTheseBeforeItsNextSibling) {
    std::vector<std::string> destroyed;
    {
        ox_debug node;
        for (const std::string name : {"a", "b"}) {
            node.children.push_right(new watched_node(name, destroyed));
            for (const std::string number : {"1", "2"}) {
                ox_debug* parent = node.children[node.children.size() - 1];
                parent->children.push_right(new watched_node(name + number, destroyed));
            }
        }
    }
    EXPECT_THAT(destroyed, ElementsAre("a", "a1", "a2", "b", "b1", "b2"));
}

/// A node that writes down how many children it has when it is destroyed.
class counting_node : public ox_debug {
public:
    explicit counting_node(std::vector<int>& found) : counts(found) {}
    ~counting_node() override { counts.push_back(children.size()); }

    counting_node(const counting_node&) = delete;
    counting_node& operator=(const counting_node&) = delete;

private:
    std::vector<int>& counts;
};

TEST(OxDebug, ADerivedNodeStillHasItsChildrenWhenItsDestructorRuns) {
    std::vector<int> counts;
    {
        ox_debug root;
        root.children.push_right(new counting_node(counts));
        ox_debug* const inner = root.children[0];
        inner->children.push_right(new counting_node(counts));
        inner->children.push_right(new counting_node(counts));
        inner->children[1]->children.push_right(new ox_debug);
    }
    EXPECT_THAT(counts, ElementsAre(2, 0, 1));
}

TEST(OxDebug, AChainOfAMillionDerivedNodesIsDestroyedWithoutDeepRecursion) {
    std::vector<int> counts;
    {
        ox_debug root;
        ox_debug* end = &root;
        for (int i = 0; i < 1000000; ++i) {
            end->children.push_right(new counting_node(counts));
            end = end->children[0];
        }
    }
    EXPECT_EQ(counts.size(), 1000000u);
}

TEST(OxDebug, NullChildrenAreSkipped) {
    std::vector<std::string> destroyed;
    {
        ox_debug node;
        node.children.push_right(nullptr);
        node.children.push_right(new watched_node("a", destroyed));
        node.children.push_right(nullptr);
        node.children[1]->children.push_right(nullptr);
    }
    EXPECT_THAT(destroyed, ElementsAre("a"));
}

TEST(OxDebug, AListOfChildrenWithANegativeCountIsEmpty) {
    ox_debug node;
    node.children = ox_list<ox_debug*>(-3);
    ox_debug* child = new ox_debug;
    child->children = ox_list<ox_debug*>(-1);
    node.children.push_right(child);
    EXPECT_EQ(node.children.size(), 1);
}

TEST(OxDebug, ACopyHasTheSameTextsAndSharesTheChildren) {
    ox_debug node;
    node.title = "title";
    node.text = "text";
    node.children.push_right(new ox_debug);
    node.children.push_right(nullptr);

    ox_debug copy(node);
    EXPECT_EQ(copy.title, "title");
    EXPECT_EQ(copy.text, "text");
    ASSERT_EQ(copy.children.size(), 2);
    EXPECT_EQ(copy.children[0], node.children[0]);
    EXPECT_EQ(copy.children[1], nullptr);
    copy.children.clear(); // node stays the only owner
}

TEST(OxDebug, AnAssignedNodeHasTheSameTextsAndSharesTheChildren) {
    ox_debug node;
    node.title = "title";
    node.text = "text";
    node.children.push_right(new ox_debug);

    ox_debug assigned;
    assigned.title = "former";
    assigned = node;
    EXPECT_EQ(assigned.title, "title");
    EXPECT_EQ(assigned.text, "text");
    ASSERT_EQ(assigned.children.size(), 1);
    EXPECT_EQ(assigned.children[0], node.children[0]);
    assigned.children.clear(); // node stays the only owner
}

TEST(OxDebug, AMovedNodeTakesItsChildrenAlong) {
    std::vector<std::string> destroyed;
    {
        ox_debug node;
        node.title = "title";
        node.children.push_right(new watched_node("a", destroyed));
        ox_debug taken(std::move(node));
        EXPECT_EQ(taken.title, "title");
        EXPECT_EQ(taken.children.size(), 1);
        ox_debug assigned;
        assigned = std::move(taken);
        EXPECT_EQ(assigned.children.size(), 1);
        EXPECT_THAT(destroyed, IsEmpty());
    }
    EXPECT_THAT(destroyed, ElementsAre("a"));
}

TEST(OxDebug, ACopyOutlivesItsSourceAsTheOnlyOwner) {
    std::vector<std::string> destroyed;
    {
        ox_debug survivor;
        {
            ox_debug node;
            node.children.push_right(new watched_node("a", destroyed));
            survivor = node;
            node.children.clear();
        }
        EXPECT_THAT(destroyed, IsEmpty());
    }
    EXPECT_THAT(destroyed, ElementsAre("a"));
}

TEST(OxDebug, AssignmentLetsGoOfTheFormerChildrenWithoutDeletingThem) {
    std::vector<std::string> destroyed;
    watched_node former("former", destroyed);
    {
        ox_debug node;
        node.children.push_right(&former);
        node = ox_debug();
        EXPECT_EQ(node.children.size(), 0);
    }
    EXPECT_THAT(destroyed, IsEmpty());
}

TEST(OxDebug, CopiesAndAssignedNodesHaveShapesOfTheirOwn) {
    ox_debug node;
    node.shapes.add_point(ox_3dvector(1, 2, 3), ox_color(1, 0, 0), 4);
    const ox_test::gl_calls calls = drawing_calls(node);
    const ox_debug copy(node);
    ox_debug assigned;
    assigned = node;
    node.shapes.clear();
    EXPECT_EQ(drawing_calls(copy), calls);
    EXPECT_EQ(drawing_calls(assigned), calls);
    EXPECT_EQ(calls.size(), 5u);
}

TEST(OxDebug, AssigningANodeToItselfChangesNothing) {
    ox_debug node;
    node.title = "title";
    node.text = "text";
    node.children.push_right(new ox_debug);
    node.shapes.add_point(ox_3dvector(1, 2, 3), ox_color(1, 0, 0), 4);
    const ox_debug& same = node;
    node = same;
    EXPECT_EQ(node.title, "title");
    EXPECT_EQ(node.text, "text");
    EXPECT_EQ(node.children.size(), 1);
    EXPECT_EQ(drawing_calls(node).size(), 5u);
}

TEST(OxDebug, AChainOfAMillionNodesIsDestroyedWithoutDeepRecursion) {
    std::vector<std::string> destroyed;
    {
        ox_debug root;
        ox_debug* end = &root;
        for (int i = 0; i < 1000000; ++i) {
            end->children.push_right(new ox_debug);
            end = end->children[0];
        }
        end->children.push_right(new watched_node("end", destroyed));
    }
    EXPECT_THAT(destroyed, ElementsAre("end"));
}

} // namespace
