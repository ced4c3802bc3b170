// All products, one entry per product and in the order of the catalogue: featured first, then the
// latest. Fields of free text are left out on purpose: their apostrophes come as they were typed.
window.catalogue = {
  id: [%%LISTPRODUCTID%%],
  ref: [%%LISTPRODUCTREF%%],
  title: [%%LISTSHORTDESC%%],
  category: [%%LISTCATEGORY%%],
  zone: [%%LISTSALEZONE%%],
  zoneCode: [%%LISTSALEZONECODE%%],
  price: [%%LISTPRICEAMOUNT%%],
  picture: [%%LISTMAINPICTUREID%%],
  choice7: [%%LIST7%%.ID],
  choice8: [%%LIST8%%.ID]
};
