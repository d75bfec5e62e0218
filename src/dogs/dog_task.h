#pragma once
// What the dog editor is opened for.

namespace lorvo {

struct DogTask {
    bool adding = false; ///< a new dog, otherwise the one selected in the tree
    int breedID = 0;     ///< whose classes are offered; a new dog is stored with it
};

} // namespace lorvo
