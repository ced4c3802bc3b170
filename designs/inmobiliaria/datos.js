// All homes, one entry per home and in the order of the catalogue: featured first, then the latest.
// Fields stand between back quotes, so that an apostrophe typed into one does no harm; the search
// page takes them apart.
window.homes = {
  id: [%%LISTPRODUCTID%%],
  ref: [%%LISTPRODUCTREF%%],
  title: [%%LISTSHORTDESC%%],
  zone: [%%LISTSALEZONE%%],
  zoneCode: [%%LISTSALEZONECODE%%],
  price: [%%LISTPRICEAMOUNT%%],
  picture: [%%LISTMAINPICTUREID%%],
  type: String.raw`%%LIST1%%.ID`,
  size: String.raw`%%LIST0%%`,
  singles: String.raw`%%LIST2%%`,
  doubles: String.raw`%%LIST3%%`,
  baths: String.raw`%%LIST4%%`,
  x15: String.raw`%%LIST15%%`,
  x16: String.raw`%%LIST16%%`,
  x18: String.raw`%%LIST18%%`,
  x19: String.raw`%%LIST19%%`,
  x20: String.raw`%%LIST20%%`
};
