#include "office/numbers/catalogue_numbers.h"

#include "office/numbers/catalogue_numbering.h"
#include "office/tree/tree_nodes.h"
#include "store/data_module.h"
#include "store/psi.h"

#include <vector>

namespace lorvo {

void GenerateCatalogueNumbers(TreeNodes& nodes) {
    std::vector<TreeNode*> numbered;
    EditRun run(TheDataModule().Conn1);
    WalkForNumbering<TreeNode>(nodes.First(), [&numbered](TreeNode& dog, std::int16_t number) {
        SetDogNumber(dog.Id(), number);
        numbered.push_back(&dog);
    });
    run.Finish();
    int number = 0;
    for (TreeNode* dog : numbered)
        nodes.SetText(dog, QString::number(++number) + u' ' + dog->text);
}

} // namespace lorvo
