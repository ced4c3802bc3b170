<!-- Web Generada con Lumenta--> 



id = ['105','104','101','102','103','107','108','109' ];
key = ['105','104-sign','101-flat','102','103','107','108','109' ];
ref = ['E5','D4','A\'1','B\2','C3','G7','H8','I9' ];
zone = ['Nogal','Zamora','Ñora','l\'Eixample','','Ávila','Nogal','Oviedo' ];
code = ['2','5','3','1','','0','2','4' ];
price = [30,20,1234.5,,0.5,50,60,70 ];
picture = ['nopicture','10402','nopicture','10204','nopicture','nopicture','nopicture','nopicture' ];
field0 = ['Green','Green','Azul','','verde',]; ['1','1','2','3','verde',];
field1 = ['luz','','it's',''Green','Green','Azul','','verde',',''','','','',','x',]; ['','','','','','',];
field2 = ['%NO%','%SI%','%SI%','%SI%',];
field3 = [%%LIST3%%]; [%%LIST3%%.ID];
short = ['','Sign','Flat','','','','','' ]; ['00','234','204','00','00','00','00','00' ];
category = ['','B/','B','','','','','' ]; ['00','FFFFFFF82','11','00','00','00','00','00' ];
document.writeln('\'\',\'Sign\',\'Flat\',\'\',\'\',\'\',\'\',\'\' ');

%%LIST9%% EN %%PRID%%
