#pragma once
// How the dog editor's boxes reach the database and the tree, without widgets.

#include "store/majitele.h"
#include "store/psi.h"

namespace lorvo {

/// What the dog editor holds when OK is pressed.
struct DogEntry {
    bool adding = false;   ///< a new dog of the breed dog.PlemenoID, otherwise a change of dog.ID
    Psi dog;               ///< MajitelID: the owner chosen from the list
    Majitele owner;        ///< the owner's boxes
    bool newOwner = false; ///< the boxes are an owner to be added, to whom the dog then belongs
};

/// The colour that an edited dog keeps: its own while the colour has a name, otherwise 0.
int KeptColour(int barvaID);

/// Writes owner and dog, patches the dog's node in the tree and selects it. A new dog that is its
/// owner's only one becomes the first dog. The dog is taken out of all shows. An owner's name that
/// nobody bears (blanks around don't count) is added as an owner without a surname, whom the dog
/// does not belong to. Sets Module().CurrentDogID. Nothing of what was written is
/// taken back when a later step raises.
void SaveDog(const DogEntry& entry);

} // namespace lorvo
