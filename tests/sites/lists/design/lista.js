id = [%%LISTPRODUCTID%%];
key = [%%LISTPRODUCTFKID%%];
ref = [%%LISTPRODUCTREF%%];
zone = [%%LISTSALEZONE%%];
code = [%%LISTSALEZONECODE%%];
price = [%%LISTPRICEAMOUNT%%];
picture = [%%LISTMAINPICTUREID%%];
field0 = [%%LIST0%%]; [%%LIST0%%.ID];
field1 = [%%LIST1%%]; [%%LIST1%%.ID];
field2 = [%%LIST2%%];
field3 = [%%LIST3%%]; [%%LIST3%%.ID];
short = [%%LISTSHORTDESC%%]; [%%LISTSHORTDESC%%.ID];
category = [%%LISTCATEGORY%%]; [%%LISTCATEGORY%%.ID];
%%LISTSHORTDESC%%.DOCWRITE
%%LIST9%% %LID% %%PRID%%
