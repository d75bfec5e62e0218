#include "office/numbers/catalogue_numbers.h"

#include "office/numbers/catalogue_numbering.h"
#include "office/tree/tree_nodes.h"
#include "store/data_module.h"
#include "store/psi.h"

namespace lorvo {

void GenerateCatalogueNumbers(TreeNodes& nodes) {
    EditRun run(TheDataModule().Conn1);
    WalkForNumbering<TreeNode>(nodes.First(), [&nodes](TreeNode& dog, std::int16_t number) {
        nodes.SetText(&dog, QString::number(number) + u' ' + dog.text);
        SetDogNumber(dog.Id(), number);
    });
    run.Finish();
}

} // namespace lorvo
