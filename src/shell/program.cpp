#include "shell/program.h"

#include "documents/screens.h"
#include "records/grade.h"
#include "records/screens.h"
#include "shell/screens.h"
#include "finance/report_screens.h"
#include "finance/screens.h"
#include "maintenance/screens.h"
#include "sales/results_screens.h"
#include "sales/screens.h"
#include "sales/venda/lookups.h"
#include "stock/pedido.h"
#include "stock/reports_screens.h"
#include "stock/screens.h"
#include "stock/stocktake_screens.h"

namespace mz::shell {

ui::Program program() {
  ui::Program p;
  p.register_screens = [](ui::Runtime& rt) {
    rt.register_screen("VERI", make_veri);
    rt.register_screen("INICIO", make_inicio);
    rt.register_screen("ini2", make_ini2);
    rt.register_screen("opera1", make_opera1);
    rt.register_screen("OPERA2", make_opera2);
    rt.register_screen("OPERA", make_opera);
    rt.register_screen("MENUDP", make_menudp);
    rt.register_screen("SENHA2", make_senha2);
    rt.register_screen("GRADE", records::make_grade);
    rt.register_screen("EMPRE", make_empre);
    rt.register_screen("lay", make_lay);
    rt.register_screen("CADSENHA", make_cadsenha);
    rt.register_screen("SENHA", make_senha);
    rt.register_screen("msn", make_msn);
    rt.register_screen("RECIBO", documents::make_recibo);
    rt.register_screen("Impecon", finance::make_impecon);
    rt.register_screen("IMPECON2", finance::make_impecon2);
    rt.register_screen("IMPECON4", finance::make_impecon4);
    rt.register_screen("BUSRECI", documents::make_busreci);
    rt.register_screen("NP", documents::make_np);
    rt.register_screen("DUPLI", documents::make_dupli);
    rt.register_screen("BUDP", documents::make_budp);
    rt.register_screen("PRODUTO", records::make_produto);
    rt.register_screen("FrmImg", records::make_frmimg);
    rt.register_screen("Cadastro", records::make_cadastro);
    rt.register_screen("SALACAD", records::make_salacad);
    rt.register_screen("c2", records::make_c2);
    rt.register_screen("FORNE", stock::make_forne);
    rt.register_screen("FORNECOD", stock::make_fornecod);
    rt.register_screen("ENTRADA", stock::make_entrada);
    rt.register_screen("PEDIDO", stock::make_pedido);
    rt.register_screen("CONSULTA", stock::make_consulta);
    rt.register_screen("PSEST", stock::make_psest);
    rt.register_screen("ETI", stock::make_eti);
    rt.register_screen("balanco", stock::make_balanco);
    rt.register_screen("deve", stock::make_deve);
    rt.register_screen("GRUPOS", stock::make_grupos);
    rt.register_screen("IMPEREFE", stock::make_imperefe);
    rt.register_screen("CAIXA", finance::make_caixa);
    rt.register_screen("BUSCAIXA", finance::make_buscaixa);
    rt.register_screen("ABRECX", finance::make_abrecx);
    rt.register_screen("FECHACX", finance::make_fechacx);
    rt.register_screen("Contas", finance::make_contas);
    rt.register_screen("bxx", finance::make_bxx);
    rt.register_screen("BUSCON", finance::make_buscon);
    rt.register_screen("CONBX", finance::make_conbx);
    rt.register_screen("CONCLIE", finance::make_conclie);
    rt.register_screen("AUTO", maintenance::make_auto);
    rt.register_screen("REPARA", maintenance::make_repara);
    rt.register_screen("TELEFONE", maintenance::make_telefone);
    rt.register_screen("fone", maintenance::make_fone);
    rt.register_screen("Impe", maintenance::make_impe);
    rt.register_screen("NAS", maintenance::make_nas);
    rt.register_screen("VENDA", sales::make_venda);
    rt.register_screen("BNOME", sales::venda::make_bnome);
    rt.register_screen("fotos", sales::venda::make_fotos);
    rt.register_screen("vendaimpre", sales::make_vendaimpre);
    rt.register_screen("troca", sales::make_troca);
    rt.register_screen("BUSVENDA", sales::make_busvenda);
    rt.register_screen("Prod", sales::make_prod);
  };
  // VERI hands over to the main screen and is never seen itself.
  p.start = [](ui::Runtime& rt) {
    rt.screen("VERI");
    rt.close("VERI");
  };
  return p;
}

}  // namespace mz::shell
