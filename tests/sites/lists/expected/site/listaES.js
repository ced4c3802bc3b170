<!-- Web Generada con Lumenta--> 



id = ['105','104','101','102','103','107','108','109' ];
key = ['105-nogal','104-senal-%%listproductid%%','101-atico','102-l-eixample','103','107-avila','108-nogal','109' ];
ref = ['E5','D4','A\'1','B\2','C3','G7','H8','I9' ];
zone = ['Nogal','Zamora','Ñora','l\'Eixample','','Ávila','Nogal','Oviedo' ];
code = ['2','5','3','1','','0','2','4' ];
price = [30,20,1234.5,,0.5,50,60,70 ];
picture = ['nopicture','10402','nopicture','10204','nopicture','nopicture','nopicture','nopicture' ];
field0 = ['Verde','Verde','Azul','','verde',]; ['1','1','2','3','verde',];
field1 = ['luz','','it's',''Verde','Verde','Azul','','verde',',''','','','',','x',]; ['','','','','','',];
field2 = ['No','Sí','Sí','Sí',];
field3 = [%%LIST3%%]; [%%LIST3%%.ID];
short = ['Nogal','Señal %%LISTPRODUCTID%%','Ático','l&#39Eixample','','Ávila','Nogal','' ]; ['225','D17','3B5','1FA','00','3B5','225','00' ];
category = ['A/y','','A/y','A/x/z','','A','É/w','' ]; ['C3','00','C3','F5','00','01','393','00' ];
document.writeln('\'Nogal\',\'Señal %%LISTPRODUCTID%%\',\'Ático\',\'l&#39Eixample\',\'\',\'Ávila\',\'Nogal\',\'\' ');

%%LIST9%% ES %%PRID%%
