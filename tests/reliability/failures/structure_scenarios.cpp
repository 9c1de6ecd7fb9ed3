#include <tests/reliability/failures/scenario.h>

#include <ox/structure/ox_loadshare.h>
#include <tests/support/random_shapes.h>

namespace failures {

namespace {

using ox::ox_3dvector;
using ox::ox_loadshare;

/// A slab of 4 x 4 on two beams, computed.
ox_loadshare slab() {
    ox_loadshare made;
    made.add_slab_contour(support::rectangle(0, 0, 4, 4));
    made.add_beam(ox_3dvector(1.0f, 0.0f, 0.0f), ox_3dvector(1.0f, 4.0f, 0.0f));
    made.add_beam(ox_3dvector(3.0f, 0.0f, 0.0f), ox_3dvector(3.0f, 4.0f, 0.0f));
    made.compute_weights(0.5f);
    return made;
}

std::string contents_of(ox_loadshare& object) {
    ox_loadshare copy(object);
    copy.compute_weights(0.5f);
    return told(copy.get_weight(0), copy.get_weight(1), copy.get_weight(2));
}

template <typename Act>
scenario on_slab(const std::string& name, Act act) {
    return on(name, slab, act, contents_of);
}

} // namespace

std::vector<scenario> structure_scenarios() {
    std::vector<scenario> all;
    all.push_back(on_slab("SlabGainsAContour", [](ox_loadshare& object) {
        object.add_slab_contour(support::rectangle(1, 1, 2, 2));
        return std::string();
    }));
    all.push_back(on_slab("SlabGainsABeam", [](ox_loadshare& object) {
        object.add_beam(ox_3dvector(2.0f, 0.0f, 0.0f), ox_3dvector(2.0f, 4.0f, 0.0f));
        return std::string();
    }));
    all.push_back(on_slab("LoadsAreComputed", [](ox_loadshare& object) {
        object.compute_weights(0.25f);
        return told(object.get_weight(0), object.get_weight(1));
    }));
    all.push_back(on_slab("LoadsArePainted", [](ox_loadshare& object) {
                      object.set_image_log(true);
                      object.compute_weights(0.25f);
                      int width = 0;
                      int height = 0;
                      const bool is_painted = object.get_image_log(width, height) != nullptr;
                      return told(is_painted, width, height);
                  }).or_refuses("0 0 0 "));
    all.push_back(on_slab("LoadsAreLogged", [](ox_loadshare& object) {
        object.produce_log(true);
        object.compute_weights(0.5f);
        object.produce_log(false);
        return told(object.get_weight(1));
    }));
    all.push_back(on_slab("SlabIsCopied", [](ox_loadshare& object) {
        const ox_loadshare copy(object);
        object = copy;
        return std::string();
    }));
    return all;
}

} // namespace failures
