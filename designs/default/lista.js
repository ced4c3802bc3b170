// All products, one entry per product and in the order of the catalogue: featured first, then the
// latest. What users type stands between back quotes, where no apostrophe or backslash does harm;
// the catalogue page takes it apart.
window.catalogue = {
  id: [%%LISTPRODUCTID%%],
  ref: [%%LISTPRODUCTREF%%],
  picture: [%%LISTMAINPICTUREID%%],
  zoneCode: [%%LISTSALEZONECODE%%],
  price: String.raw%B%%%LISTPRICEAMOUNT%%%B%,
  title: String.raw%B%%%LISTSHORTDESC%%%B%,
  category: String.raw%B%%%LISTCATEGORY%%%B%,
  zone: String.raw%B%%%LISTSALEZONE%%%B%,
  choice7: String.raw%B%%%LIST7%%.ID%B%,
  choice8: String.raw%B%%%LIST8%%.ID%B%
};
